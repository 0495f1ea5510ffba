#include "FrameCount.h"

#include <QDebug>

#include <cmath>
#include <cstdio>
#include <cstring>

namespace MTools {

namespace {

// Twice the 24-frame film frame for each frame of 30-frame video, one column per
// pulldown phase; the low bit marks the second half of a film frame.
const int pulldownRemoveLookupTable[30][4] = {
    { 0, 0, -1, -1 },
    { 2, 1, 0, 0 },
    { 3, 2, 2, 2 },
    { 4, 4, 4, 4 },
    { 6, 6, 6, 5 },
    { 8, 8, 7, 6 },
    { 10, 9, 8, 8 },
    { 11, 10, 10, 10 },
    { 12, 12, 12, 12 },
    { 14, 14, 14, 13 },
    { 16, 16, 15, 14 },
    { 18, 17, 16, 16 },
    { 19, 18, 18, 18 },
    { 20, 20, 20, 20 },
    { 22, 22, 22, 21 },
    { 24, 24, 23, 22 },
    { 26, 25, 24, 24 },
    { 27, 26, 26, 26 },
    { 28, 28, 28, 28 },
    { 30, 30, 30, 29 },
    { 32, 32, 31, 30 },
    { 34, 33, 32, 32 },
    { 35, 34, 34, 34 },
    { 36, 36, 36, 36 },
    { 38, 38, 38, 37 },
    { 40, 40, 39, 38 },
    { 42, 41, 40, 40 },
    { 43, 42, 42, 42 },
    { 44, 44, 44, 44 },
    { 46, 46, 46, 45 },
};

// The 30-frame video frame for each 24-frame film frame, one column per pulldown phase.
// Film frame 23 in phase 4 lands on frame 0 of the next second.
const int pulldownInsertLookupTable[24][4] = {
    { 0, 0, 1, 1 },
    { 1, 2, 2, 2 },
    { 3, 3, 3, 3 },
    { 4, 4, 4, 5 },
    { 5, 5, 6, 6 },
    { 6, 7, 7, 7 },
    { 8, 8, 8, 8 },
    { 9, 9, 9, 10 },
    { 10, 10, 11, 11 },
    { 11, 12, 12, 12 },
    { 13, 13, 13, 13 },
    { 14, 14, 14, 15 },
    { 15, 15, 16, 16 },
    { 16, 17, 17, 17 },
    { 18, 18, 18, 18 },
    { 19, 19, 19, 20 },
    { 20, 20, 21, 21 },
    { 21, 22, 22, 22 },
    { 23, 23, 23, 23 },
    { 24, 24, 24, 25 },
    { 25, 25, 26, 26 },
    { 26, 27, 27, 27 },
    { 28, 28, 28, 28 },
    { 29, 29, 29, 0 },
};

const float ntscVideoRate = 29.97f;
const float ntscFilmRate = 23.98f;
const unsigned int dropFrameFlag = 0x40;

void logUnexpected(const char* file, int line)
{
    qDebug().nospace() << "unexpected ERROR in " << file << " line " << line;
}

// atoi() of a two-character field: blanks, an optional sign, then digits.
int fieldValue(const QChar* field)
{
    int i = 0;
    const auto blank
        = [](QChar c) { return c == QLatin1Char(' ') || (c >= QLatin1Char('\t') && c <= QLatin1Char('\r')); };
    while (i < 2 && blank(field[i]))
        ++i;
    int sign = 1;
    if (i < 2 && (field[i] == QLatin1Char('-') || field[i] == QLatin1Char('+'))) {
        sign = field[i] == QLatin1Char('-') ? -1 : 1;
        ++i;
    }
    int value = 0;
    for (; i < 2 && field[i] >= QLatin1Char('0') && field[i] <= QLatin1Char('9'); ++i)
        value = value * 10 + (field[i].unicode() - '0');
    return sign * value;
}

// "%02d%c%02d%c%02d%c%02d"; a zero separator ends the text there.
QString formatTimecode(int h, char first, int m, char second, int s, char third, int f)
{
    char buffer[64];
    if (h >= 0 && h < 100 && m >= 0 && m < 100 && s >= 0 && s < 100 && f >= 0 && f < 100) {
        const char text[] = { char('0' + h / 10), char('0' + h % 10), first, char('0' + m / 10), char('0' + m % 10),
            second, char('0' + s / 10), char('0' + s % 10), third, char('0' + f / 10), char('0' + f % 10), '\0' };
        std::memcpy(buffer, text, sizeof text);
    } else {
        std::snprintf(buffer, sizeof buffer, "%02d%c%02d%c%02d%c%02d", h, first, m, second, s, third, f);
    }
    return QString::fromLatin1(buffer);
}

// Moves the time one second forward, minutes and hours following; hours wrap at 24.
void carrySecond(int& h, int& m, int& s)
{
    if (++s < 60)
        return;
    s = 0;
    if (++m < 60)
        return;
    m = 0;
    if (++h >= 24)
        h = 0;
}

// Moves the time one second back; hours wrap to 23.
void borrowSecond(int& h, int& m, int& s)
{
    if (--s >= 0)
        return;
    s = 59;
    if (--m >= 0)
        return;
    m = 59;
    if (--h < 0)
        h = 23;
}

} // namespace

FrameCount::FrameCount() = default;

FrameCount::FrameCount(long long frame, float fps)
    : m_frame(frame)
    , m_fps(fps)
{
}

FrameCount::FrameCount(int h, int m, int s, int f, float fps, bool pulldown, int phase, int* odd)
    : m_fps(fps)
{
    m_frame = frameCountFromTimecode(h, m, s, f, pulldown, phase, odd);
}

FrameCount::FrameCount(float fps, unsigned int smpte, bool pulldown, int phase, int* odd)
{
    setSmpteTimecode(smpte, fps, pulldown, phase, odd);
}

FrameCount::FrameCount(const FrameCount& other)
    : m_frame(other.frame())
    , m_frameCountKnown(other.m_frameCountKnown)
    , m_fps(other.m_fps)
{
    if (other.m_smpteKnown) {
        m_smpteTimecode = other.m_smpteTimecode;
        m_smpteKnown = true;
    }
}

FrameCount& FrameCount::operator=(const FrameCount& other)
{
    m_frame = other.frame();
    m_frameCountKnown = other.m_frameCountKnown;
    m_fps = other.m_fps;
    m_smpteKnown = other.m_smpteKnown;
    if (other.m_smpteKnown)
        m_smpteTimecode = other.m_smpteTimecode;
    return *this;
}

bool FrameCount::isDropFrameRate(float fps)
{
    return fps == ntscVideoRate || fps == ntscFilmRate;
}

int FrameCount::nominalFrames(float fps)
{
    if (fps == ntscVideoRate)
        return 30;
    if (fps == ntscFilmRate)
        return 24;
    // Not a number, infinity or a rate no film or video has counts as no rate.
    if (!(std::fabs(fps) < maximumRate))
        return 0;
    return static_cast<int>(std::fabs(fps));
}

FipTime FrameCount::frameCountFromTimecode(int h, int m, int s, int f, bool pulldown, int phase, int* odd) const
{
    if (nominalFrames(m_fps) == 0)
        return unknownFrame;

    FipTime n = nominalFrames(m_fps);
    if (pulldown) {
        if (phase < 1 || phase > 4 || f < 0 || f >= 30) {
            qDebug().nospace() << "FrameCount::frameCountFromTimecode wrong pulldown value: phase " << phase
                               << " frame " << f;
            return unknownFrame;
        }
        n = 24;
        const int v = pulldownRemoveLookupTable[f][phase - 1];
        f = v / 2;
        if (odd)
            *odd = v % 2;
    }

    FipTime frames = 3600 * n * h + 60 * n * m + n * s + f;
    if (isDropFrameRate(m_fps)) {
        // Two frame numbers are skipped at the start of every minute but each tenth.
        const FipTime minutes = 60LL * h + m;
        frames -= 2 * (minutes - minutes / 10);
    }
    return frames;
}

FipTime FrameCount::frameCountFromTimecode(const QString& text, bool pulldown, int phase) const
{
    if (text.size() != 11)
        return unknownFrame;
    const QChar* digits = text.constData();
    return frameCountFromTimecode(fieldValue(digits), fieldValue(digits + 3), fieldValue(digits + 6),
        fieldValue(digits + 9), pulldown, phase, nullptr);
}

void FrameCount::timecodeFromFrameCount(
    int* hOut, int* mOut, int* sOut, int* fOut, bool wrap, int offset, bool pulldown, int phase) const
{
    int h = 0;
    int m = 0;
    int s = 0;
    int f = 0;
    const auto deliver = [&]() {
        if (hOut)
            *hOut = h;
        if (mOut)
            *mOut = m;
        if (sOut)
            *sOut = s;
        if (fOut)
            *fOut = f;
    };

    if (m_frame == unknownFrame) {
        logUnexpected(__FILE__, __LINE__);
        deliver();
        return;
    }
    if (nominalFrames(m_fps) == 0) {
        deliver();
        return;
    }

    const bool drop = isDropFrameRate(m_fps);
    // With pulldown the frame number counts 24-frame film frames.
    const FipTime n = pulldown ? 24 : nominalFrames(m_fps);
    const FipTime tenMinutes = n == 30 ? 17982 : 14382;
    const FipTime firstMinute = n == 30 ? 1800 : 1440;
    const FipTime perMinute = n == 30 ? 1798 : 1438;

    const FipTime day = drop ? 144 * tenMinutes : n * 86400;
    if (day == 0) {
        deliver();
        return;
    }

    FipTime frame = m_frame;
    if (frame < 0)
        frame = (frame % day + day) % day;
    if (wrap) {
        if (frame > day)
            frame = (frame - 1) % day + 1;
    } else if (frame >= day) {
        frame %= day;
    }

    if (drop) {
        const FipTime tens = frame / tenMinutes;
        const FipTime rest = frame % tenMinutes;
        const FipTime extra = rest >= firstMinute ? 1 + (rest - firstMinute) / perMinute : 0;
        const FipTime minutes = tens * 10 + extra;
        frame += 2 * (minutes - minutes / 10);
    }

    const FipTime seconds = frame / n;
    f = static_cast<int>(frame % n);
    s = static_cast<int>(seconds % 60);
    m = static_cast<int>(seconds / 60 % 60);
    h = static_cast<int>(seconds / 3600);

    if (pulldown) {
        if (phase < 1 || phase > 4) {
            qDebug().nospace() << "FrameCount::timecodeFromFrameCount wrong pulldown phase value: " << phase;
            deliver();
            return;
        }
        const int film = f;
        const int v = pulldownInsertLookupTable[film][phase - 1];
        int video = offset + v;
        // The last film frame of phase 4 lands on the first video frame of the next second.
        if (v < film)
            video += 30;
        if (video >= 30) {
            video -= 30;
            carrySecond(h, m, s);
        } else if (video < 0) {
            video += 30;
            borrowSecond(h, m, s);
        }
        f = video;
    }
    deliver();
}

QString FrameCount::timecodeFromFrameCount(bool wrap, bool pulldown, int phase) const
{
    if (nominalFrames(m_fps) == 0)
        return QString();
    int h = 0;
    int m = 0;
    int s = 0;
    int f = 0;
    timecodeFromFrameCount(&h, &m, &s, &f, wrap, 0, pulldown, phase);
    const char separator = isDropFrameRate(m_fps) ? ';' : ':';
    return formatTimecode(h, separator, m, separator, s, separator, f);
}

QString FrameCount::timecodeToString(int h, int m, int s, int f, bool drop, float fps, bool film)
{
    const char separator = drop ? ';' : ':';
    char frameSeparator = separator;
    if (film && !drop) {
        if (fps == 24.0f)
            frameSeparator = '+';
        else if (fps == 25.0f || fps == 30.0f)
            frameSeparator = ':';
        else
            frameSeparator = '\0'; // no known film rate: the text ends after the seconds
    }
    return formatTimecode(h, separator, m, separator, s, frameSeparator, f);
}

QString FrameCount::timecodeToString(int h, int m, int s, int f, bool drop) const
{
    return timecodeToString(h, m, s, f, drop, m_fps, false);
}

void FrameCount::setSmpteTimecode(unsigned int smpte, float fps, bool pulldown, int phase, int* odd)
{
    m_fps = fps;
    if (!(smpte & dropFrameFlag)) {
        if (fps == ntscFilmRate)
            m_fps = 24.0f;
        else if (fps == ntscVideoRate)
            m_fps = 30.0f;
    }
    m_smpteTimecode = smpte;
    m_smpteKnown = true;

    const int f = static_cast<int>((smpte >> 4) & 3) * 10 + static_cast<int>(smpte & 15);
    const int s = static_cast<int>((smpte >> 12) & 7) * 10 + static_cast<int>((smpte >> 8) & 15);
    const int m = static_cast<int>((smpte >> 20) & 7) * 10 + static_cast<int>((smpte >> 16) & 15);
    const int h = static_cast<int>((smpte >> 28) & 3) * 10 + static_cast<int>((smpte >> 24) & 15);
    m_frame = frameCountFromTimecode(h, m, s, f, pulldown, phase, odd);
    m_frameCountKnown = m_frame != unknownFrame;
}

unsigned int FrameCount::smpteTimecode()
{
    if (!m_smpteKnown) {
        if (m_frame == unknownFrame) {
            qDebug() << "FrameCount::smpteTimecode() wille framecount is unkonwn";
            return 0;
        }
        calcSmpteTimecode();
    }
    return m_smpteTimecode;
}

unsigned int FrameCount::calcSmpteTimecode()
{
    int h = 0;
    int m = 0;
    int s = 0;
    int f = 0;
    timecodeFromFrameCount(&h, &m, &s, &f);
    const auto bcd = [](int value, unsigned int tensMask, int shift) {
        const unsigned int units = static_cast<unsigned int>(value % 10) & 15;
        const unsigned int tens = static_cast<unsigned int>(value / 10) & tensMask;
        return ((tens << 4) | units) << shift;
    };
    unsigned int packed = bcd(f, 3, 0) | bcd(s, 7, 8) | bcd(m, 7, 16) | bcd(h, 3, 24);
    // The flag lets a reader tell 29.97 from 30 again.
    if (isDropFrameRate(m_fps))
        packed |= dropFrameFlag;
    m_smpteTimecode = packed;
    m_smpteKnown = true;
    return m_smpteTimecode;
}

FipTime FrameCount::frame() const
{
    return m_frame;
}

float FrameCount::fps() const
{
    return m_fps;
}

bool FrameCount::isKnown() const
{
    return m_frame != unknownFrame;
}

void FrameCount::setFrameCount(long long frame)
{
    m_frame = frame;
    m_frameCountKnown = true;
    m_smpteKnown = false;
}

void FrameCount::unsetFrameCount()
{
    m_frame = unknownFrame;
    m_frameCountKnown = false;
    m_smpteKnown = false;
}

FipTime FrameCount::convertFrame(float fps)
{
    if (m_frame == unknownFrame) {
        logUnexpected(__FILE__, __LINE__);
        return unknownFrame;
    }
    if (m_fps < 0.0f)
        m_fps = -m_fps;
    if (nominalFrames(m_fps) == 0 || nominalFrames(fps) == 0)
        return unknownFrame;
    return std::llround(static_cast<double>(m_frame) * fps / m_fps);
}

void FrameCount::updateFps(float fps)
{
    m_frame = convertFrame(fps);
    m_fps = fps;
    m_frameCountKnown = true;
    m_smpteKnown = false;
}

void FrameCount::print() const
{
    qDebug().nospace() << "frame = " << m_frame;
}

bool FrameCount::operator==(const FrameCount& other) const
{
    return m_frame == other.m_frame && m_fps == other.m_fps && m_frameCountKnown == other.m_frameCountKnown;
}

bool FrameCount::operator<(const FrameCount& other) const
{
    if (isKnown() && other.isKnown())
        return m_frame < other.m_frame;
    logUnexpected(__FILE__, __LINE__);
    return false;
}

bool FrameCount::operator>(const FrameCount& other) const
{
    if (isKnown() && other.isKnown())
        return m_frame > other.m_frame;
    logUnexpected(__FILE__, __LINE__);
    return false;
}

} // namespace MTools
