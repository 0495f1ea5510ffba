#include "ScaledPicture.h"

#include <QImageReader>

namespace QMWidgets {

ScaledPicture::ScaledPicture(const QString& resource)
    : m_resource(resource)
    , m_size(QImageReader(resource).size())
{
}

bool ScaledPicture::isNull() const
{
    return !m_size.isValid() || m_size.isEmpty();
}

QSize ScaledPicture::size() const
{
    return m_size;
}

QPixmap ScaledPicture::at(const QSize& pixels)
{
    if (isNull() || pixels.isEmpty())
        return QPixmap();
    if (m_scaled.size() == pixels)
        return m_scaled;
    // A JPEG reader decodes straight at a reduced size (libjpeg's scaled
    // decoding) and smooths the rest of the way.
    QImageReader reader(m_resource);
    reader.setScaledSize(pixels);
    m_scaled = QPixmap::fromImage(reader.read());
    return m_scaled;
}

} // namespace QMWidgets
