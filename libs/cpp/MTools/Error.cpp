#include "Error.h"

namespace MTools {

Error::Error(const char* message)
    : m_message(QString::fromUtf8(message))
{
}

Error::Error(const QString& message)
    : m_message(message)
{
}

QString Error::message() const
{
    return m_message;
}

} // namespace MTools
