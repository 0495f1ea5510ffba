#pragma once

#include "BoardLayers.h"

#include <QFrame>
#include <QMap>

namespace QMMusic {

// The drawn keyboard of a full 88-key piano: a press names, lights and
// plays the key under it, a note set from elsewhere lights its key. Every
// note has one key, so there is nothing to train and no single-note step;
// an overlay is named by key number, ":/Piano_<n>.png".
class PianoBoard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(PianoBoard)

public:
    explicit PianoBoard(QWidget* parent = nullptr);

    // Widget point to position name ("A0#", "C4"), or an empty string.
    QString positionToNote(int x, int y) const;
    // The key shown, in decimal ("40" for middle C); empty when none is.
    QString currentNote() const;
    const QMap<QString, QString>& overlayMap() const;

public slots:
    void slotSetNote(const QString& name, int accidental);

signals:
    void noteChanged(const QString& name, int accidental);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString m_currentNote;
    BoardLayers m_layers;
    QMap<QString, QString> m_overlayMap;
};

} // namespace QMMusic
