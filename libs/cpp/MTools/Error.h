#pragma once

#include <QString>

namespace MTools {

// The exception of the audio library: one message, read with message().
class Error
{
public:
    explicit Error(const char* message);
    explicit Error(const QString& message);

    QString message() const;

private:
    QString m_message;
};

} // namespace MTools
