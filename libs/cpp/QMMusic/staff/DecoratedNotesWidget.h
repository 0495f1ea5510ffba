#pragma once

#include <QFrame>

namespace QMMusic {

class NotesTrainerWidget;
class NotesWidget;

// The paper frame above a board that holds the staff in Find Note mode and
// the trainer panel in Training mode, one at a time, and relays their signals.
class DecoratedNotesWidget : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(DecoratedNotesWidget)

public:
    explicit DecoratedNotesWidget(QWidget* parent = nullptr);

    // Staff settings, passed on unchanged.
    void setPaperHeightFactor(const float& factor);
    void setStartLine(const int& line);
    void setLines(const int& lines);
    void setTranslateLines(const int& lines);
    void setNoBass(bool noBass);
    void setNoViolin(bool noViolin);
    void setInstrumentName(const QString& name);

    NotesWidget* notesWidget() const;
    NotesTrainerWidget* trainerWidget() const;
    bool isTrainingStarted() const;

signals:
    void noteChanged(const QString& name, int accidental);
    void needNextNote();
    void trainingStarted(bool started);

public slots:
    // The staff first, then the trainer, so the trainer learns every note
    // the board asks without a signal of its own.
    void slotShowNote(const QString& name, int accidental);
    void slotSetTraningMode();
    void slotSetFindNoteMode();

private:
    NotesWidget* m_notesWidget = nullptr;
    NotesTrainerWidget* m_trainer = nullptr;
};

} // namespace QMMusic
