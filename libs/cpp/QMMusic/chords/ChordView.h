#pragma once

#include <QFrame>
#include <QString>
#include <QVector>

namespace QMMusic {

class ChordPhotoView;
class ChordStandardView;
class ChordTabView;

// The three pictures of one chord side by side, the neck diagram above the
// tablature and the photo beside them, with the play button and the
// instrument's label on the left.
class ChordView : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(ChordView)

public:
    explicit ChordView(QWidget* parent = nullptr);

    // Hands the chord to the three pictures.
    void setChordTabAndName(int chord, const QVector<int>& tab, const QString& name);
    // The key of the instrument, which also names the label's picture.
    void setInstrumentName(const QString& key);

    ChordStandardView* standardView() const { return m_standardView; }
    ChordTabView* tabView() const { return m_tabView; }
    ChordPhotoView* photoView() const { return m_photoView; }
    QFrame* instrumentLabel() const { return m_instrumentLabel; }

signals:
    void play();

private:
    ChordStandardView* m_standardView = nullptr;
    ChordTabView* m_tabView = nullptr;
    ChordPhotoView* m_photoView = nullptr;
    QFrame* m_instrumentLabel = nullptr;
    QString m_instrumentName;
};

} // namespace QMMusic
