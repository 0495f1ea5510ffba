#pragma once

#include <QFrame>
#include <QVector>

class QLabel;

namespace QMMusic {

// The row of beat lamps: one lamp per beat of the bar, the current one lit.
class MetronomeBeats : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(MetronomeBeats)

public:
    static constexpr int LampCount = 12;

    explicit MetronomeBeats(QWidget* parent = nullptr);

    // Lights lamp i and puts out the others; nothing at or past 12.
    void setCurrentBeat(int i);
    int count() const;
    const QVector<QLabel*>& lamps() const;

public slots:
    // Shows the first n lamps; nothing above 12.
    void slotSetBeats(int n);

private:
    QVector<QLabel*> m_lamps;
    int m_count = 0;
};

} // namespace QMMusic
