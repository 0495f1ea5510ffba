#pragma once

#include <QFrame>

class QButtonGroup;
class QHBoxLayout;
class QSignalMapper;
class QTimer;

namespace QMWidgets {

class HelpDisplay;

// The slide show of the introduction: the picture frame, a row of numbered
// buttons, one per slide, and the timer that moves on every four seconds.
class HelpViewArea : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(HelpViewArea)

public:
    static constexpr int SlideInterval = 4000;

    explicit HelpViewArea(QWidget* parent = nullptr);

    void addSlide(const QString& path);
    HelpDisplay* display() const;
    bool isSlideShowRunning() const;

public slots:
    void slotStartSlideShow();
    void slotStopSlideShow();
    void slotShowNextSlide();
    void slotShowSlide(const QString& path);

private:
    QTimer* m_timer = nullptr;
    HelpDisplay* m_display = nullptr;
    QHBoxLayout* m_buttonsLayout = nullptr;
    QButtonGroup* m_buttonGroup = nullptr;
    QSignalMapper* m_mapper = nullptr;
};

} // namespace QMWidgets
