#pragma once

#include <QEventLoop>
#include <QFrame>

class QAction;
class QMovie;
class QPushButton;
class QVBoxLayout;

namespace QMWidgets {

class IconLabel;
class TitleLabel;

// A frameless window with its own title bar (icon, title, window buttons)
// that can run modally like a dialog through exec().
class TopWidget : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(TopWidget)

public:
    // overlay puts the content into an inner frame "TopOverWidget" with no
    // margins, so that a style can draw it apart from the title bar.
    explicit TopWidget(bool overlay = false, QWidget* parent = nullptr);

    QVBoxLayout* topLayout() const;
    void setTitleLabel(const QString& title);
    void setTitleHeight(int height);
    void setIcon(const QPixmap& pixmap);

    void hideClose();
    void hideMaximize();
    void hideMinimize();
    void showClose();
    void showMaximize();
    void showMinimize();

    void setDecoration(QWidget* decoration, const QPoint& offset);
    void setDecoration(QMovie* movie, const QPoint& offset);
    void setDecoration(const QPixmap& pixmap, const QPoint& offset);

    // Shows the window modally and returns 1 after accept(), 0 after
    // reject() or Escape.
    int exec();

public slots:
    void accept();
    void reject();

private:
    QVBoxLayout* m_contentLayout = nullptr;
    QPushButton* m_closeButton = nullptr;
    QPushButton* m_maximizeButton = nullptr;
    QPushButton* m_minimizeButton = nullptr;
    TitleLabel* m_titleLabel = nullptr;
    IconLabel* m_iconLabel = nullptr;
    QEventLoop m_loop;
    QAction* m_escapeAction = nullptr;
};

} // namespace QMWidgets
