#pragma once

#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>
#include <QVector>

// The program's own widgets, set up and rendered for each introduction
// slide: the page finding a note, the staff, training, the report, the menus.
class SlideScenes
{
public:
    struct Scene
    {
        QImage content;
        QList<QRectF> rings;
    };

    // The scenes on the page of an instrument key ("Guitar", "Ukulele", ...,
    // or "Metronome" for its three); a scene the instrument has nothing for
    // has no content.
    static QVector<Scene> render(const QString& instrumentKey);
};
