#pragma once

#include <QDialog>

class QPushButton;

namespace QMWidgets {

class HelpViewArea;

// The introduction: a modal window with the slide show, "Close" and "Never
// show on start", offered at start until the user declines it.
class HelpDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(HelpDialog)

public:
    explicit HelpDialog(QWidget* parent = nullptr);

    void addSlide(const QString& path);
    HelpViewArea* viewArea() const;

    // True while the user hasn't asked to skip the introduction at start.
    static bool isShowOnStartAvailable();

public slots:
    void slotReject();
    void slotNeverShowItAgain();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QPushButton* m_neverShowButton = nullptr;
    HelpViewArea* m_viewArea = nullptr;
};

} // namespace QMWidgets
