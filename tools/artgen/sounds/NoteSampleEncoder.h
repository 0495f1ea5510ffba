#pragma once

#include <QString>
#include <QTemporaryDir>
#include <QVector>

#include <deque>
#include <memory>

class ArtWriter;
class QProcess;

// Encodes the samples of single notes, "<key>_<pitch>_<stem>.mp3", into the
// Resources folder: each wave goes to a scratch folder and a lame process
// turns it into a mono 44.1 kHz VBR file (-V 7). A few encoders run side by
// side while the next notes are synthesised.
class NoteSampleEncoder
{
public:
    static constexpr int SampleRate = 44100;
    static constexpr int ParallelEncoders = 4;

    explicit NoteSampleEncoder(ArtWriter& writer);
    // Waits for the encoders still running.
    ~NoteSampleEncoder();

    // Starts the encoding of one note; waits first for the oldest encoder when
    // as many as ParallelEncoders are running.
    void encode(const QString& instrumentKey, int midiNote, const QVector<float>& samples);
    // The same for a sample of any name, e.g. "guitar_415_E2.mp3".
    void encode(const QString& fileName, const QVector<float>& samples);
    void finish();

    // The file stem of a MIDI note: letter, "d" for a sharp, octave ("Cd3").
    static QString stem(int midiNote);
    // Equal temperament from A4 at the concert pitch.
    static double frequency(int midiNote, double concertPitch = 440.0);

private:
    ArtWriter& m_writer;
    QTemporaryDir m_scratch;
    std::deque<std::unique_ptr<QProcess>> m_running;
};
