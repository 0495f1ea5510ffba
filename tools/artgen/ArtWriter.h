#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

class QImage;
class QPainter;
class QSize;
class QSizeF;

// Writes the generated files and remembers the pictures for the .qrc that
// compiles them into the program.
class ArtWriter
{
public:
    ArtWriter(const QString& picturesDir, const QString& bundleDir);

    // Saves a picture under its resource name, e.g. "Guitar_0@2x.jpg"
    // becomes ":/Guitar_0@2x.jpg". The format follows the suffix. A picture
    // of one instrument's program names its group, the instrument key; the
    // others are every program's.
    bool addPicture(
        const QString& resourceName, const QImage& image, int quality = -1, const QString& group = QString());
    // Paints at a logical size, antialiased, and saves "name.png" at that
    // size and "name@2x.png" at twice it.
    using Painter = std::function<void(QPainter&, const QSizeF&)>;
    bool addPicturePair(const QString& name, const QSize& size, const Painter& paint);
    // Saves a file into the Resources folder beside the program.
    bool addBundleFile(const QString& fileName, const QByteArray& data);
    QString bundlePath(const QString& fileName) const;
    // Writes <dir>/art.qrc with every program's pictures and
    // <dir>/art_<group>.qrc with each group's.
    bool writeQrcFiles(const QString& dir) const;

private:
    QString m_picturesDir;
    QString m_bundleDir;
    // Resource names by group; the empty group is every program's.
    QMap<QString, QStringList> m_pictures;
};
