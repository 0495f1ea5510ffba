#include "ArtWriter.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QTextStream>

ArtWriter::ArtWriter(const QString& picturesDir, const QString& bundleDir)
    : m_picturesDir(picturesDir)
    , m_bundleDir(bundleDir)
{
    QDir().mkpath(m_picturesDir);
    QDir().mkpath(m_bundleDir);
}

bool ArtWriter::addPicture(const QString& resourceName, const QImage& image, int quality, const QString& group)
{
    const QString path = m_picturesDir + QLatin1Char('/') + resourceName;
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (!image.save(path, nullptr, quality))
        return false;
    m_pictures[group].append(resourceName);
    return true;
}

bool ArtWriter::addPicturePair(const QString& name, const QSize& size, const Painter& paint)
{
    bool ok = true;
    for (int scale = 1; scale <= 2; ++scale) {
        QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::TextAntialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.scale(scale, scale);
        paint(painter, QSizeF(size));
        painter.end();
        ok = addPicture(name + (scale == 1 ? QStringLiteral(".png") : QStringLiteral("@2x.png")), image) && ok;
    }
    return ok;
}

bool ArtWriter::addBundleFile(const QString& fileName, const QByteArray& data)
{
    QSaveFile file(bundlePath(fileName));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(data);
    return file.commit();
}

QString ArtWriter::bundlePath(const QString& fileName) const
{
    return m_bundleDir + QLatin1Char('/') + fileName;
}

bool ArtWriter::writeQrcFiles(const QString& dir) const
{
    bool ok = true;
    for (auto group = m_pictures.cbegin(); group != m_pictures.cend(); ++group) {
        QSaveFile file(dir
            + (group.key().isEmpty() ? QStringLiteral("/art.qrc") : QStringLiteral("/art_%1.qrc").arg(group.key())));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
            ok = false;
            continue;
        }
        QTextStream out(&file);
        out << "<!DOCTYPE RCC><RCC version=\"1.0\">\n<qresource prefix=\"/\">\n";
        for (const QString& name : group.value())
            out << "    <file>" << name << "</file>\n";
        out << "</qresource>\n</RCC>\n";
        out.flush();
        ok = file.commit() && ok;
    }
    return ok;
}
