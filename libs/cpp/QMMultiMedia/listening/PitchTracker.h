#pragma once

#include <QString>
#include <QVector>

namespace QMMultiMedia {

// One hop of the pitch detector: the frequency it found, how sure it is of
// it (0 to 1), the loudness of the hop (RMS, full scale 1) and its length.
struct PitchReading
{
    double frequency = 0.0;
    double confidence = 0.0;
    double level = 0.0;
    double durationMs = 0.0;
};

// What the tracker makes of the readings so far. A note is a MIDI number
// (A4 is 69); cents are its deviation at the concert pitch.
struct PitchState
{
    bool voiced = false;
    int note = -1;
    double cents = 0.0;
    double frequency = 0.0;
    // The note has held for StableMs.
    bool stable = false;
    // True on exactly one reading per played note: the one that made it stable.
    bool started = false;
};

// Turns the detector's readings into notes: a silence gate, a confidence gate,
// a note that counts only once it has held for about 80 ms, and one start per
// note, so that a string that goes on ringing is not heard twice. A clear rise
// in loudness (a new pluck) or a pause arms it for the same note again.
class PitchTracker
{
public:
    // About -50 dB below full scale.
    static constexpr double SilenceLevel = 0.003;
    static constexpr double MinimumConfidence = 0.8;
    static constexpr double StableMs = 80.0;
    // A hop this many times louder than the one before is a new attack.
    static constexpr double OnsetRatio = 2.0;

    explicit PitchTracker(double concertPitch = 440.0);

    void setConcertPitch(double concertPitch);
    double concertPitch() const;

    PitchState feed(const PitchReading& reading);
    void reset();

    static double frequencyOf(int note, double concertPitch);
    static int nearestNote(double frequency, double concertPitch);
    static double centsFrom(double frequency, int note, double concertPitch);
    // The index of the string nearest in pitch to the frequency; -1 for none.
    static int nearestString(double frequency, const QVector<int>& strings, double concertPitch);
    // "E2" with accidental 0 is 40; flats and sharps move across the octave
    // border as they sound (B3 sharp is C4). -1 for a name that is no note.
    static int noteNumber(const QString& noteName, int accidental);
    // 40 is "E2", 42 is "F2#": letter, octave and a trailing "#" for a sharp.
    static QString noteName(int note);

private:
    bool isVoiced(const PitchReading& reading) const;

    double m_concertPitch = 440.0;
    int m_candidate = -1;
    double m_candidateMs = 0.0;
    double m_unvoicedMs = 0.0;
    int m_announced = -1;
    double m_lastLevel = 0.0;
};

} // namespace QMMultiMedia
