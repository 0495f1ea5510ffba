#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

namespace QMMusic {

// The dial of the listening tuner: a needle over a scale of +-50 cents with a
// green zone of +-3 cents, the name of the nearest string above the pivot and
// the deviation under it. The needle eases toward each reading so that it
// does not jitter; without a sound it rests greyed at the centre.
class TunerNeedle : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(TunerNeedle)

public:
    explicit TunerNeedle(QWidget* parent = nullptr);

    void setReading(const QString& stringName, double cents);
    void setSilent();

    bool isSilent() const;
    QString stringName() const;
    double shownCents() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The still parts (case, face, scale, zone) are drawn once per size.
    void renderFace();

    QPixmap m_face;
    QString m_stringName;
    double m_shownCents = 0.0;
    bool m_silent = true;
};

} // namespace QMMusic
