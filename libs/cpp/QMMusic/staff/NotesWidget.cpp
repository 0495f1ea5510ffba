#include "NotesWidget.h"

#include "App.h"
#include "AudioPoolPlayer.h"
#include "NoteSamples.h"
#include "NoteSpelling.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace QMMusic {

namespace {

QPushButton* makeSignButton(const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(objectName);
    button->setFlat(true);
    button->setCheckable(true);
    button->setFixedSize(37, 37);
    return button;
}

QPixmap scaledSquare(const QString& resource, int side)
{
    const QPixmap source(resource);
    if (source.isNull() || side <= 0)
        return QPixmap();
    return source.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

const QChar kFlatSign(0x266D);

} // namespace

NotesWidget::NotesWidget(QWidget* parent)
    : QFrame(parent)
{
    QMMultiMedia::AudioPoolPlayer::instance()->setVolume(50);

    m_flatButton = makeSignButton(QStringLiteral("FlatSignButton"), this);
    m_sharpButton = makeSignButton(QStringLiteral("SharpSignButton"), this);
    m_naturalButton = makeSignButton(QStringLiteral("NaturalSignButton"), this);
    m_naturalButton->setChecked(true);
    connect(m_flatButton, &QPushButton::clicked, this, &NotesWidget::slotSetFlat);
    connect(m_sharpButton, &QPushButton::clicked, this, &NotesWidget::slotSetSharp);
    connect(m_naturalButton, &QPushButton::clicked, this, &NotesWidget::slotSetNatural);

    setAttribute(Qt::WA_MouseTracking);

    translateSolfege();

    m_noteLabel = new QLabel(this);
    m_noteLabel->setObjectName(QStringLiteral("NoteLabel"));

    auto* signs = new QHBoxLayout;
    signs->setContentsMargins(1, 1, 1, 1);
    signs->setSpacing(2);
    signs->addWidget(m_naturalButton);
    signs->addWidget(m_sharpButton);
    signs->addWidget(m_flatButton);

    auto* controls = new QHBoxLayout;
    controls->setContentsMargins(0, 0, 0, 0);
    controls->setSpacing(0);
    controls->addLayout(signs);
    controls->addStretch(1);
    controls->addWidget(m_noteLabel);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(5, 5, 5, 5);
    layout->setSpacing(5);
    layout->addLayout(controls);
    layout->addStretch(1);
}

void NotesWidget::setPaperHeightFactor(const float& factor)
{
    m_paperHeightFactor = factor;
}

void NotesWidget::setStartLine(const int& line)
{
    m_startLine = line;
}

void NotesWidget::setLines(const int& lines)
{
    m_lines = lines;
}

void NotesWidget::setTranslateLines(const int& lines)
{
    m_translateLines = lines;
}

void NotesWidget::setNoBass(bool noBass)
{
    m_noBass = noBass;
}

void NotesWidget::setNoViolin(bool noViolin)
{
    m_noViolin = noViolin;
}

void NotesWidget::setInstrumentName(const QString& name)
{
    m_instrumentName = name;
}

bool NotesWidget::isFlat() const
{
    return m_flatButton->isChecked();
}

bool NotesWidget::isSharp() const
{
    return m_sharpButton->isChecked();
}

bool NotesWidget::isNatural() const
{
    return m_naturalButton->isChecked();
}

float NotesWidget::linesHeight() const
{
    return staffGeometry().lineHeight();
}

int NotesWidget::c4() const
{
    return StaffGeometry::c4;
}

float NotesWidget::shortLineWidth() const
{
    return staffGeometry().shortLineWidth();
}

float NotesWidget::noteWidth() const
{
    return staffGeometry().noteWidth();
}

int NotesWidget::pianoLines() const
{
    return m_lines;
}

QPoint NotesWidget::nameToPos(const QString& name) const
{
    return QPoint(10, m_namePosMap.value(name, 0));
}

void NotesWidget::setNote(const QString& name, const QString& solfegeName)
{
    const int accidental = isFlat() ? -1 : (isSharp() ? 1 : 0);
    setNoteLabel(name, solfegeName, accidental);
    emit noteChanged(name, accidental);
}

void NotesWidget::setNoteLabel(const QString& name, const QString& solfegeName, int accidental)
{
    QString sign;
    if (accidental == 1)
        sign = QStringLiteral("#");
    else if (accidental == -1)
        sign = QStringLiteral("<b>") + kFlatSign + QStringLiteral("</b>");
    m_noteLabel->setText(QStringLiteral("<CENTER><FONT SIZE=\"10\">") + sign + name
        + QStringLiteral("</FONT><br><FONT SIZE=\"5\">(") + sign + solfegeName + QStringLiteral(")</FONT></CENTER>"));
}

void NotesWidget::slotShowNote(const QString& name, int accidental)
{
    static const QString kLetters = QStringLiteral("CDEFGA");
    const int letter = name.isEmpty() ? -1 : kLetters.indexOf(name.at(0));
    setNoteLabel(name, m_solfege.at(letter < 0 ? 6 : letter), accidental);

    if (accidental < 0)
        checkSignButton(m_flatButton);
    else if (accidental > 0)
        checkSignButton(m_sharpButton);
    else
        checkSignButton(m_naturalButton);

    const auto it = m_namePosMap.constFind(name);
    if (it == m_namePosMap.constEnd())
        return;
    m_notePoint = QPoint(10, it.value());
    // update() only schedules the paint; the paint that follows runs with
    // the signals open and reports a changed name back as usual.
    blockSignals(true);
    update();
    blockSignals(false);
}

void NotesWidget::slotSetFlat()
{
    checkSignButton(m_flatButton);
}

void NotesWidget::slotSetSharp()
{
    checkSignButton(m_sharpButton);
}

void NotesWidget::slotSetNatural()
{
    checkSignButton(m_naturalButton);
}

void NotesWidget::checkSignButton(QPushButton* button)
{
    // The three buttons act as one exclusive choice without a button group,
    // and a click on the checked one keeps it checked.
    for (QPushButton* sign : { m_flatButton, m_sharpButton, m_naturalButton })
        sign->setChecked(sign == button);
}

StaffGeometry NotesWidget::staffGeometry() const
{
    StaffGeometry geometry;
    geometry.setHeight(height());
    geometry.setPaperHeightFactor(m_paperHeightFactor);
    geometry.setStartLine(m_startLine);
    geometry.setLines(m_lines);
    geometry.setTranslateLines(m_translateLines);
    return geometry;
}

qreal NotesWidget::pixelRatio() const
{
    const QMWidgets::App* app = QMWidgets::App::theApp();
    return app ? app->devicePixelRatio() : devicePixelRatioF();
}

void NotesWidget::generateNamePosMap()
{
    // Entries of an earlier size are overwritten in place, never cleared.
    const QMap<QString, int> positions = staffGeometry().namePositions(m_instrumentName);
    for (auto it = positions.constBegin(); it != positions.constEnd(); ++it)
        m_namePosMap.insert(it.key(), it.value());
}

void NotesWidget::translateSolfege()
{
    m_solfege = { tr("do"), tr("re"), tr("mi"), tr("fa"), tr("sol"), tr("la"), tr("si") };
}

void NotesWidget::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translateSolfege();
}

void NotesWidget::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    // The pointer's row is kept in pixels: carry it into the new size so that
    // it stays on the note the user chose.
    if (!m_notePoint.isNull() && event->oldSize().height() > 0) {
        StaffGeometry before = staffGeometry();
        before.setHeight(event->oldSize().height());
        m_notePoint.setY(staffGeometry().rowFrom(before, m_notePoint.y()));
    }
    generateNamePosMap();
    m_regenerateKeys = true;
    m_regenerateNote = true;
}

void NotesWidget::regenerateKeys(const StaffGeometry& geometry)
{
    const qreal ratio = pixelRatio();
    if (!m_noViolin)
        m_violinKeyPixmap
            = scaledSquare(QStringLiteral(":/violinkey.png"), int(geometry.violinKeyRect().width() * ratio));
    if (!m_noBass)
        m_bassKeyPixmap = scaledSquare(QStringLiteral(":/basskey.png"), int(geometry.bassKeyRect().width() * ratio));
    m_regenerateKeys = false;
}

void NotesWidget::paintEvent(QPaintEvent* event)
{
    const StaffGeometry geometry = staffGeometry();
    QPainter painter(this);

    const int w = width();
    const float s = geometry.shortLineWidth();
    for (int line = m_startLine; line < m_lines; ++line) {
        const float y = geometry.lineY(line);
        const bool treble = line >= 10 && line <= 14 && !m_noViolin;
        const bool bass = line >= 16 && line <= 20 && !m_noBass;
        if (treble || bass)
            painter.drawLine(QPointF(0, y), QPointF(w, y));
        else
            painter.drawLine(QPointF(w / 2 + s, y), QPointF(w / 2 - s, y));
    }

    if (m_regenerateKeys)
        regenerateKeys(geometry);
    if (!m_noViolin && !m_violinKeyPixmap.isNull())
        painter.drawPixmap(geometry.violinKeyRect(), m_violinKeyPixmap);
    if (!m_noBass && !m_bassKeyPixmap.isNull())
        painter.drawPixmap(geometry.bassKeyRect(), m_bassKeyPixmap);

    drawNote(painter, geometry);
    painter.end();
    QFrame::paintEvent(event);
}

void NotesWidget::drawNote(QPainter& painter, const StaffGeometry& geometry)
{
    if (m_notePoint.isNull())
        return;

    painter.setRenderHint(QPainter::Antialiasing);
    const int h = geometry.halfLineIndex(float(m_notePoint.y()));
    const float top = geometry.noteTop(h);
    if (geometry.isAboveLimit(top))
        return;

    const QRect box = geometry.noteRect(width(), top);
    if (m_regenerateNote) {
        const QPixmap source(QStringLiteral(":/note.png"));
        const qreal ratio = pixelRatio();
        m_notePixmap = source.isNull() || box.isEmpty()
            ? QPixmap()
            : source.scaled(box.size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        m_regenerateNote = false;
    }
    if (!m_notePixmap.isNull())
        painter.drawPixmap(box, m_notePixmap);

    // The music font's sharp or flat, in front of the head.
    const QString signPicture = isFlat() ? QStringLiteral(":/staffflat.png")
        : isSharp()                      ? QStringLiteral(":/staffsharp.png")
                                         : QString();
    if (!signPicture.isEmpty()) {
        const QPixmap sign(signPicture);
        if (!sign.isNull())
            painter.drawPixmap(geometry.signRect(width(), top, sign.size()), sign, QRectF(sign.rect()));
    }

    int letter = 0;
    int octave = 0;
    if (!StaffGeometry::noteOfIndex(h, &letter, &octave))
        return;
    const QString name = QLatin1Char("CDEFGAB"[letter]) + QString::number(octave);
    if (name == m_currentName)
        return;
    m_currentName = name;
    setNote(name, m_solfege.at(letter) + QString::number(octave));
}

void NotesWidget::mouseMoveEvent(QMouseEvent* event)
{
    m_notePoint = event->pos();
    QFrame::mouseMoveEvent(event);
    update();
}

void NotesWidget::mousePressEvent(QMouseEvent* event)
{
    // Clearing the name makes the repaint report the note even when the
    // pointer has not left it since the last hover.
    m_currentName.clear();
    m_notePoint = event->pos();
    repaint();

    QString stem = m_currentName;
    if (isSharp())
        stem = NoteSpelling::stem(m_currentName, 1);
    else if (isFlat())
        stem = NoteSpelling::stem(m_currentName, -1);
    playSample(NoteSamples::path(m_instrumentName, stem));
}

void NotesWidget::playSample(const QString& path)
{
    QMMultiMedia::AudioPoolPlayer::instance()->play(path);
}

} // namespace QMMusic
