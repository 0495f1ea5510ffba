#pragma once

#include <QFrame>

namespace QMMusic {

// The score bar of a training run: the share of right answers in green, the
// rest in red, and the share as a whole percentage on top.
class NotesLernBar : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(NotesLernBar)

public:
    explicit NotesLernBar(QWidget* parent = nullptr);

    int wrongCount() const;
    int rightCount() const;
    // The setters and counters store only; the owner asks for the repaint.
    void setWrongCount(const int& count);
    void setRightCount(const int& count);
    void incWrong();
    void incRight();
    void reset();

    // Share of right answers in percent, in single precision; 0 when there is no answer.
    static float rightShare(int right, int wrong);
    // The drawn text: the share truncated, never rounded, and "%" without a blank.
    static QString percentText(int right, int wrong);
    // Width in pixels of the green part and of the red part that follows it.
    static int rightWidth(int width, int right, int wrong);
    static int wrongWidth(int width, int right, int wrong);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_wrongCount = 0;
    int m_rightCount = 0;
};

} // namespace QMMusic
