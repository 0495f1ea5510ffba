#pragma once

#include <QPixmap>
#include <QString>

namespace QMMultiMedia {

// The cover picture of a sound file: the first picture that lies beside the
// file, or the built-in one. No tag is parsed and no byte of the file is read.
class ID3Info
{
public:
    explicit ID3Info(const QString& fileName);
    virtual ~ID3Info() = default;

    // Never null while the built-in picture is compiled into the program.
    const QPixmap& cover() const;

private:
    QString m_fileName;
    QPixmap m_cover;
};

} // namespace QMMultiMedia
