#pragma once

#include <QFrame>
#include <QPixmap>

namespace QMWidgets {

// The frame of the introduction that paints one slide, centred on black.
class HelpDisplay : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(HelpDisplay)

public:
    explicit HelpDisplay(QWidget* parent = nullptr);

    void setSlide(const QString& path);
    QString slide() const;

    // Where a picture scaled to twice the frame's size is drawn: at half its
    // pixel size, centred, never off the left or top edge.
    static QRect targetRect(const QSize& frameSize, const QSize& scaledPictureSize);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateCachedPixmap();

    QString m_slide;
    QPixmap m_cachedPixmap;
    bool m_cacheValid = false;
};

} // namespace QMWidgets
