#include "PitchTracker.h"

#include <cmath>
#include <limits>

namespace QMMultiMedia {

namespace {

constexpr int A4 = 69;
// Semitones of C, D, E, F, G, A, B above C.
constexpr int s_letterSemitones[] = { 0, 2, 4, 5, 7, 9, 11 };
const char* const s_pitchClassNames[] = { "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B" };

} // namespace

PitchTracker::PitchTracker(double concertPitch)
    : m_concertPitch(concertPitch)
{
}

void PitchTracker::setConcertPitch(double concertPitch)
{
    m_concertPitch = concertPitch;
}

double PitchTracker::concertPitch() const
{
    return m_concertPitch;
}

bool PitchTracker::isVoiced(const PitchReading& reading) const
{
    return reading.level >= SilenceLevel && reading.confidence >= MinimumConfidence && reading.frequency > 0.0
        && std::isfinite(reading.frequency);
}

PitchState PitchTracker::feed(const PitchReading& reading)
{
    PitchState state;
    const bool onset = reading.level >= SilenceLevel && reading.level > m_lastLevel * OnsetRatio;
    m_lastLevel = reading.level;
    if (onset) {
        m_announced = -1;
        m_candidateMs = 0.0;
    }
    if (!isVoiced(reading)) {
        // A short gap inside a note keeps it; a pause lets the same note count again.
        m_unvoicedMs += reading.durationMs;
        if (m_unvoicedMs >= StableMs) {
            m_candidate = -1;
            m_candidateMs = 0.0;
            m_announced = -1;
        }
        return state;
    }
    m_unvoicedMs = 0.0;
    state.voiced = true;
    state.frequency = reading.frequency;
    state.note = nearestNote(reading.frequency, m_concertPitch);
    state.cents = centsFrom(reading.frequency, state.note, m_concertPitch);
    if (state.note != m_candidate) {
        m_candidate = state.note;
        m_candidateMs = 0.0;
    }
    m_candidateMs += reading.durationMs;
    state.stable = m_candidateMs >= StableMs;
    state.started = state.stable && m_announced != state.note;
    if (state.started)
        m_announced = state.note;
    return state;
}

void PitchTracker::reset()
{
    m_candidate = -1;
    m_candidateMs = 0.0;
    m_unvoicedMs = 0.0;
    m_announced = -1;
    m_lastLevel = 0.0;
}

double PitchTracker::frequencyOf(int note, double concertPitch)
{
    return concertPitch * std::pow(2.0, (note - A4) / 12.0);
}

int PitchTracker::nearestNote(double frequency, double concertPitch)
{
    if (frequency <= 0.0 || concertPitch <= 0.0)
        return -1;
    return static_cast<int>(std::lround(A4 + 12.0 * std::log2(frequency / concertPitch)));
}

double PitchTracker::centsFrom(double frequency, int note, double concertPitch)
{
    if (frequency <= 0.0 || concertPitch <= 0.0)
        return 0.0;
    return 1200.0 * std::log2(frequency / frequencyOf(note, concertPitch));
}

int PitchTracker::nearestString(double frequency, const QVector<int>& strings, double concertPitch)
{
    int nearest = -1;
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < strings.size(); ++i) {
        const double distance = std::abs(centsFrom(frequency, strings.at(i), concertPitch));
        if (distance < best) {
            best = distance;
            nearest = i;
        }
    }
    return nearest;
}

int PitchTracker::noteNumber(const QString& noteName, int accidental)
{
    if (noteName.size() < 2)
        return -1;
    const int letter = QStringLiteral("CDEFGAB").indexOf(noteName.at(0));
    const QChar octave = noteName.at(1);
    if (letter < 0 || !octave.isDigit())
        return -1;
    const int shift = accidental < 0 ? -1 : (accidental >= 1 ? 1 : 0);
    return 12 * (octave.digitValue() + 1) + s_letterSemitones[letter] + shift;
}

QString PitchTracker::noteName(int note)
{
    if (note < 12 || note >= 120)
        return QString();
    const QString pitchClass = QLatin1String(s_pitchClassNames[note % 12]);
    return pitchClass.left(1) + QString::number(note / 12 - 1) + pitchClass.mid(1);
}

} // namespace QMMultiMedia
