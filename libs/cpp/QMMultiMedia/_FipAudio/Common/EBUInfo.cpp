#include "EBUInfo.h"

#include "FileUtil.h"
#include "Production.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QDebug>

#include <algorithm>
#include <cstring>

namespace Audio {

namespace {

// Text of a fixed-width field, zero characters included.
QString arrToString(const char* data, int length)
{
    return QString::fromLocal8Bit(data, length);
}

// The local 8-bit form of a field, cut or padded with zero bytes to its width.
QByteArray fieldBytes(const QString& value, int width)
{
    QByteArray bytes = value.toLocal8Bit().left(width);
    bytes.append(QByteArray(width - bytes.size(), '\0'));
    return bytes;
}

// The build of the program as month/day/year of its compilation.
QString buildOfProgram()
{
    static const char* const months[]
        = { "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec" };
    QString build = QStringLiteral(__DATE__).simplified().replace(QLatin1Char(' '), QLatin1Char('/'));
    for (int month = 0; month < 12; ++month)
        build.replace(QLatin1String(months[month]), QString::number(month + 1));
    return build;
}

bool readField(FILE* file, char* target, int width)
{
    return std::fread(target, 1, static_cast<size_t>(width), file) == static_cast<size_t>(width);
}

} // namespace

EBUInfo::EBUInfo()
    : m_originationDate(QStringLiteral("0000-00-00"))
    , m_originationTime(QStringLiteral("00:00:00"))
{
}

EBUInfo::EBUInfo(long long timeReference, float fps)
    : EBUInfo()
{
    m_fps = fps;
    setDescription(QStringLiteral("sSPEED=") + QString::number(static_cast<double>(fps), 'g', 6));
    setTimeReference(timeReference);
}

EBUInfo::~EBUInfo() = default;

QString EBUInfo::padded(const QString& value, int width)
{
    QString text(width, QChar(0));
    text.replace(0, value.size(), value);
    return text;
}

QString EBUInfo::description() const
{
    return m_description;
}

void EBUInfo::setDescription(const QString& description)
{
    m_description = padded(description, descriptionWidth);
}

QString EBUInfo::originator() const
{
    return m_originator;
}

void EBUInfo::setOriginator(const QString& originator)
{
    m_originator = padded(originator, originatorWidth);
}

QString EBUInfo::originationRef() const
{
    return m_originationRef;
}

void EBUInfo::setOriginationRef(const QString& originationRef)
{
    m_originationRef = padded(originationRef, originationRefWidth);
}

QString EBUInfo::originationDate() const
{
    return m_originationDate;
}

void EBUInfo::setOriginationDate(const QString& originationDate)
{
    m_originationDate = padded(originationDate, originationDateWidth);
}

QString EBUInfo::originationTime() const
{
    return m_originationTime;
}

void EBUInfo::setOriginationTime(const QString& originationTime)
{
    m_originationTime = padded(originationTime, originationTimeWidth);
}

unsigned int EBUInfo::timeReferenceLow() const
{
    return m_timeReferenceLow;
}

void EBUInfo::setTimeReferenceLow(unsigned int low)
{
    m_timeReferenceLow = low;
}

unsigned int EBUInfo::timeReferenceHigh() const
{
    return m_timeReferenceHigh;
}

void EBUInfo::setTimeReferenceHigh(unsigned int high)
{
    m_timeReferenceHigh = high;
}

long long EBUInfo::timeReference() const
{
    return static_cast<long long>((static_cast<unsigned long long>(m_timeReferenceHigh) << 32) | m_timeReferenceLow);
}

void EBUInfo::setTimeReference(const long long& timeReference)
{
    const auto value = static_cast<unsigned long long>(timeReference);
    m_timeReferenceLow = static_cast<unsigned int>(value & 0xffffffffu);
    m_timeReferenceHigh = static_cast<unsigned int>(value >> 32);
}

int EBUInfo::version() const
{
    return m_version;
}

void EBUInfo::setVersion(int version)
{
    m_version = version;
}

char EBUInfo::umid(int index) const
{
    return index >= 0 && index < umidSize ? m_umid[index] : 0;
}

void EBUInfo::setUMID(int index, char value)
{
    if (index >= 0 && index < umidSize)
        m_umid[index] = value;
}

const char* EBUInfo::umidsData() const
{
    return m_umid;
}

const char* EBUInfo::reservedData() const
{
    return m_reserved;
}

QString EBUInfo::umidsString() const
{
    QString text;
    for (int line = 0; line < 8; ++line) {
        const auto* b = reinterpret_cast<const unsigned char*>(m_umid + line * 8);
        text += QString::asprintf(
            "%02x %02x %02x %02x %02x %02x %02x %02x\n", b[0], b[1], b[2], b[3], b[4], b[5], b[6], b[7]);
    }
    return text;
}

int EBUInfo::chunkSize() const
{
    return m_chunkSize;
}

void EBUInfo::setChunkSize(int chunkSize)
{
    m_chunkSize = chunkSize;
}

QString EBUInfo::codingHistory() const
{
    return m_codingHistory;
}

void EBUInfo::setCodingHistory(const QString& codingHistory)
{
    m_codingHistory = codingHistory;
}

float EBUInfo::fps() const
{
    return m_fps;
}

void EBUInfo::setFps(float fps)
{
    m_fps = fps;
}

int EBUInfo::size() const
{
    return fixedSize + m_codingHistory.toLocal8Bit().size();
}

bool EBUInfo::save(FILE* file) const
{
    const QByteArray history = m_codingHistory.toLocal8Bit();
    const QByteArray fields = fieldBytes(m_description, descriptionWidth) + fieldBytes(m_originator, originatorWidth)
        + fieldBytes(m_originationRef, originationRefWidth) + fieldBytes(m_originationDate, originationDateWidth)
        + fieldBytes(m_originationTime, originationTimeWidth);
    bool ok = std::fwrite("bext", 4, 1, file) == 1;
    ok = ok && FileUtil::writeL(static_cast<unsigned int>(fixedSize + history.size()), file, false) != 0;
    ok = ok && std::fwrite(fields.constData(), static_cast<size_t>(fields.size()), 1, file) == 1;
    ok = ok && FileUtil::writeL(m_timeReferenceLow, file, false) != 0;
    ok = ok && FileUtil::writeL(m_timeReferenceHigh, file, false) != 0;
    ok = ok && FileUtil::writeS(static_cast<unsigned short>(m_version), file, false) != 0;
    ok = ok && std::fwrite(m_umid, umidSize, 1, file) == 1;
    ok = ok && std::fwrite(m_reserved, reservedSize, 1, file) == 1;
    if (ok && !history.isEmpty())
        ok = std::fwrite(history.constData(), static_cast<size_t>(history.size()), 1, file) == 1;
    return ok;
}

bool EBUInfo::save(const char* path) const
{
    FILE* file = std::fopen(path, "wb");
    if (!file) {
        qWarning("EBUInfo::save: file create error");
        return false;
    }
    const bool ok = save(file);
    return std::fclose(file) == 0 && ok;
}

bool EBUInfo::load(const char* path)
{
    FILE* file = std::fopen(path, "rb");
    if (!file) {
        qWarning("EBUInfo::load: file open error");
        return false;
    }
    char id[4] = {};
    const bool isChunk = std::fread(id, 4, 1, file) == 1 && std::memcmp(id, "bext", 4) == 0;
    if (isChunk) {
        m_chunkSize = static_cast<int>(FileUtil::readL(file, false));
        initFromHeader(file);
    }
    std::fclose(file);
    return isChunk;
}

void EBUInfo::initFromHeader(FILE* file)
{
    char text[descriptionWidth];
    readField(file, text, descriptionWidth);
    m_description = arrToString(text, descriptionWidth);
    readField(file, text, originatorWidth);
    m_originator = arrToString(text, originatorWidth);
    readField(file, text, originationRefWidth);
    m_originationRef = arrToString(text, originationRefWidth);
    readField(file, text, originationDateWidth);
    m_originationDate = arrToString(text, originationDateWidth);
    readField(file, text, originationTimeWidth);
    m_originationTime = arrToString(text, originationTimeWidth);
    m_timeReferenceLow = FileUtil::readL(file, false);
    m_timeReferenceHigh = FileUtil::readL(file, false);
    m_version = FileUtil::readS(file, false);
    readField(file, m_umid, umidSize);
    readField(file, m_reserved, reservedSize);

    // The history fills the rest of the chunk; read in pieces, so that a claimed size
    // larger than the file costs no more memory than the file holds.
    long long remaining = static_cast<long long>(m_chunkSize) - fixedSize;
    QByteArray history;
    char piece[4096];
    while (remaining > 0) {
        const size_t wanted = static_cast<size_t>(std::min<long long>(remaining, sizeof piece));
        const size_t got = std::fread(piece, 1, wanted, file);
        history.append(piece, static_cast<int>(got));
        if (got < wanted)
            break;
        remaining -= static_cast<long long>(got);
    }
    m_codingHistory = QString::fromLocal8Bit(history);
}

void EBUInfo::fill(const QString& fileName, int sampleRate, int bitsPerSample, int channels)
{
    setOriginator(QStringLiteral("CORVANE"));
    setOriginationRef(QCoreApplication::applicationName() + QLatin1Char(':'));
    m_version = 1;
    const QDateTime now = QDateTime::currentDateTime();
    setOriginationDate(QString::asprintf("%04d-%02d-%02d", now.date().year(), now.date().month(), now.date().day()));
    setOriginationTime(
        QString::asprintf("%02d:%02d:%02d", now.time().hour(), now.time().minute(), now.time().second()));
    fillDescription(fileName);
    updateHistory(sampleRate, bitsPerSample, channels);
}

void EBUInfo::fillDescription(const QString& fileName)
{
    Q_UNUSED(fileName)
    const QString lineEnd = QStringLiteral("\r\n");
    QString bits = userBits();
    if (bits.isEmpty()) {
        const QDate today = QDate::currentDate();
        bits = QString::asprintf("%02d%02d%02d%02d", today.day(), today.month(), today.year() - 1900 - 100, 0);
    }
    const float fps = static_cast<int>(m_fps) != 0 ? m_fps : Production::fps();
    QString text = QStringLiteral("sUBITS=$") + bits + lineEnd;
    text += QStringLiteral("sSPEED=") + QString::asprintf("%6.3f", static_cast<double>(fps)) + QStringLiteral("-ND")
        + lineEnd;
    if (!take().isEmpty())
        text += QStringLiteral("sTAKE=") + take() + lineEnd;
    if (!scene().isEmpty())
        text += QStringLiteral("sSCENE=") + scene() + lineEnd;
    text += QStringLiteral("sSWVER=") + QCoreApplication::applicationVersion() + QLatin1Char('.') + buildOfProgram()
        + lineEnd;
    text += QStringLiteral("sFILENAME=") + replaceSpacesWith(QString(), '_') + lineEnd;
    text += QStringLiteral("sPROJECTNAME=") + replaceSpacesWith(Production::projectName(), '_');
    text += QStringLiteral("\r\nsTRK=\r\nsNOTE=\r\n");
    setDescription(text);
}

void EBUInfo::updateHistory(int sampleRate, int bitsPerSample, int channels)
{
    QString mode;
    if (channels == 1)
        mode = QStringLiteral("mono");
    else if (channels == 2)
        mode = QStringLiteral("stereo");
    else
        mode = QString::number(channels) + QStringLiteral("CH");
    m_codingHistory += QStringLiteral("A=PCM,F=%1,W=%2,M=%3,T=\r\n").arg(sampleRate).arg(bitsPerSample).arg(mode);
}

QString EBUInfo::replaceSpacesWith(const QString& text, char c)
{
    QString result = text;
    return result.replace(QLatin1Char(' '), QLatin1Char(c));
}

QString EBUInfo::scene() const
{
    QStringList keys { QStringLiteral("SCENE=") };
    return searchForTemplates(keys);
}

QString EBUInfo::take() const
{
    QStringList keys { QStringLiteral("TAKE=") };
    return searchForTemplates(keys);
}

QString EBUInfo::userBits() const
{
    QStringList keys { QStringLiteral("UBITS=$"), QStringLiteral("gUBITS=") };
    return searchForTemplates(keys);
}

QString EBUInfo::searchForTemplates(QStringList& keys) const
{
    Q_UNUSED(keys)
    return QString();
}

void EBUInfo::dump() const
{
    qDebug() << "Description =" << m_description;
    qDebug() << "Originator =" << m_originator;
    qDebug() << "Origination Reference =" << m_originationRef;
    qDebug() << "Origination Date =" << m_originationDate;
    qDebug() << "Origination Time =" << m_originationTime;
    qDebug() << "Time Reference =" << timeReference();
    qDebug() << "Version =" << m_version;
    qDebug() << "Coding History =" << m_codingHistory;
}

} // namespace Audio
