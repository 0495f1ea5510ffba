#pragma once

#include <QPixmap>
#include <QString>

namespace QMWidgets {

// A picture of the program's resources decoded only when it is drawn, and
// then straight at the size it is drawn at: a JPEG decodes at a half or a
// quarter of its size in a fraction of the time, which keeps the large
// pictures of a page from holding up its first frame. The natural size is
// read from the file's header at once.
class ScaledPicture
{
public:
    ScaledPicture() = default;
    explicit ScaledPicture(const QString& resource);

    bool isNull() const;
    QSize size() const;

    // The picture at exactly these pixels; the last one is kept.
    QPixmap at(const QSize& pixels);

private:
    QString m_resource;
    QSize m_size;
    QPixmap m_scaled;
};

} // namespace QMWidgets
