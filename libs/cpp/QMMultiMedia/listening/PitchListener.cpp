#include "PitchListener.h"

#include "PitchWorker.h"

#include <QAudioDeviceInfo>
#include <QThread>

namespace QMMultiMedia {

PitchListener::PitchListener(QObject* parent)
    : QObject(parent)
{
}

PitchListener::~PitchListener()
{
    stop();
}

QString PitchListener::unavailableReason()
{
    if (!QAudioDeviceInfo::defaultInputDevice().isNull())
        return QString();
    if (QAudioDeviceInfo::defaultOutputDevice().isNull())
        return tr("No sound server is running, so the instrument cannot be heard.");
    return tr("No microphone is connected, so the instrument cannot be heard.");
}

void PitchListener::setDeviceName(const QString& name)
{
    m_deviceName = name;
}

void PitchListener::setConcertPitch(double concertPitch)
{
    m_tracker.setConcertPitch(concertPitch);
}

double PitchListener::concertPitch() const
{
    return m_tracker.concertPitch();
}

bool PitchListener::isListening() const
{
    return m_thread != nullptr;
}

void PitchListener::start()
{
    if (m_thread)
        return;
    m_tracker.reset();
    m_voiced = false;
    m_thread = new QThread(this);
    m_worker = new PitchWorker;
    m_worker->moveToThread(m_thread);
    connect(m_worker, &PitchWorker::reading, this, &PitchListener::slotReading, Qt::QueuedConnection);
    connect(m_worker, &PitchWorker::failed, this, &PitchListener::slotWorkerFailed, Qt::QueuedConnection);
    m_thread->start();
    QMetaObject::invokeMethod(m_worker, "slotStart", Qt::QueuedConnection, Q_ARG(QString, m_deviceName));
    emit listeningChanged(true);
}

void PitchListener::stop()
{
    if (!m_thread)
        return;
    // The input is closed on its own thread before the thread ends.
    QMetaObject::invokeMethod(m_worker, "slotStop", Qt::BlockingQueuedConnection);
    m_thread->quit();
    m_thread->wait();
    delete m_worker;
    m_worker = nullptr;
    delete m_thread;
    m_thread = nullptr;
    if (m_voiced) {
        m_voiced = false;
        emit silenced();
    }
    emit listeningChanged(false);
}

void PitchListener::slotReading(double frequency, double confidence, double level, double durationMs)
{
    // Readings still queued when listening stopped are dropped.
    if (!m_thread)
        return;
    const PitchState state = m_tracker.feed({ frequency, confidence, level, durationMs });
    if (!state.voiced) {
        if (m_voiced) {
            m_voiced = false;
            emit silenced();
        }
        return;
    }
    m_voiced = true;
    emit pitchChanged(state.frequency, state.note, state.cents);
    if (state.started)
        emit notePlayed(state.note, state.cents);
}

void PitchListener::slotWorkerFailed()
{
    if (!m_thread)
        return;
    stop();
    emit failed();
}

} // namespace QMMultiMedia
