#pragma once

#include "Settings.h"

#include <QString>

namespace Audio {

// Base of every input, output and buffer of the audio library: it carries the stream settings.
class AudioIO
{
public:
    explicit AudioIO(const Settings& settings = Settings());
    virtual ~AudioIO();

    virtual Settings settings() const;
    virtual void setSettings(const Settings& settings);
    // Writes name() to the debug log.
    virtual void dump() const;
    virtual QString name() const;

private:
    Settings m_settings;
};

} // namespace Audio
