#include "ID3Info.h"

#include "MediaCommon.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace QMMultiMedia {

ID3Info::ID3Info(const QString& fileName)
    : m_fileName(fileName)
{
    // Only whether the file opens is asked; nothing depends on the answer.
    QFile file(m_fileName);
    if (file.open(QIODevice::ReadOnly))
        file.close();

    if (m_cover.isNull()) {
        const QDir dir(QFileInfo(m_fileName).absolutePath());
        const QStringList entries = dir.entryList({ QStringLiteral("*") }, QDir::Files, QDir::Unsorted);
        for (const QString& entry : entries) {
            if (!MediaCommon::isImage(entry))
                continue;
            const QPixmap picture(dir.path() + QLatin1Char('/') + entry);
            if (!picture.isNull()) {
                m_cover = picture;
                break;
            }
        }
    }
    if (m_cover.isNull())
        m_cover.load(QStringLiteral(":/pix/Wrenfield.png"));
}

const QPixmap& ID3Info::cover() const
{
    return m_cover;
}

} // namespace QMMultiMedia
