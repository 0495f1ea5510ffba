#include "StaffGeometry.h"

#include <cmath>

#include <cstddef>

namespace QMMusic {

namespace {

const char* const kLetters = "CDEFGAB";
// C0 stands on this half-line; every step of the scale up is one less.
constexpr int kC0Index = 58;

struct Row
{
    const char* name;
    int y;
};

// Rows of the natural notes in a widget 324 pixels high, each with its
// instrument's staff settings, tuned by hand to fall inside the right half-line.
const Row kGuitarRows[] = {
    { "E2", 310 },
    { "F2", 301 },
    { "G2", 288 },
    { "A2", 279 },
    { "B2", 270 },
    { "C3", 259 },
    { "D3", 251 },
    { "E3", 240 },
    { "F3", 232 },
    { "G3", 222 },
    { "A3", 213 },
    { "B3", 203 },
    { "C4", 194 },
    { "D4", 183 },
    { "E4", 175 },
    { "F4", 164 },
    { "G4", 154 },
    { "A4", 146 },
    { "B4", 137 },
    { "C5", 125 },
    { "D5", 118 },
    { "E5", 107 },
    { "F5", 97 },
    { "G5", 87 },
    { "A5", 79 },
    { "B5", 69 },
    { "C6", 59 },
    { "D6", 49 },
};

const Row kPianoRows[] = {
    { "A0", 322 },
    { "B0", 315 },
    { "C1", 310 },
    { "D1", 304 },
    { "E1", 298 },
    { "F1", 292 },
    { "G1", 286 },
    { "A1", 281 },
    { "B1", 274 },
    { "C2", 269 },
    { "D2", 261 },
    { "E2", 257 },
    { "F2", 250 },
    { "G2", 245 },
    { "A2", 238 },
    { "B2", 232 },
    { "C3", 225 },
    { "D3", 219 },
    { "E3", 214 },
    { "F3", 209 },
    { "G3", 201 },
    { "A3", 196 },
    { "B3", 189 },
    { "C4", 184 },
    { "D4", 177 },
    { "E4", 173 },
    { "F4", 166 },
    { "G4", 160 },
    { "A4", 154 },
    { "B4", 148 },
    { "C5", 141 },
    { "D5", 136 },
    { "E5", 130 },
    { "F5", 124 },
    { "G5", 118 },
    { "A5", 112 },
    { "B5", 106 },
    { "C6", 100 },
    { "D6", 94 },
    { "E6", 88 },
    { "F6", 82 },
    { "G6", 76 },
    { "A6", 69 },
    { "B6", 63 },
    { "C7", 57 },
    { "D7", 52 },
    { "E7", 46 },
    { "F7", 40 },
    { "G7", 34 },
    { "A7", 28 },
    { "B7", 22 },
    { "C8", 15 },
};

const Row kUkuleleRows[] = {
    { "C4", 293 },
    { "D4", 278 },
    { "E4", 261 },
    { "F4", 244 },
    { "G4", 230 },
    { "A4", 212 },
    { "B4", 196 },
    { "C5", 180 },
    { "D5", 165 },
    { "E5", 147 },
    { "F5", 130 },
    { "G5", 116 },
    { "A5", 101 },
    { "B5", 85 },
    { "C6", 70 },
};

const Row kBassRows[] = {
    { "E1", 319 },
    { "F1", 303 },
    { "G1", 292 },
    { "A1", 280 },
    { "B1", 266 },
    { "C2", 255 },
    { "D2", 241 },
    { "E2", 228 },
    { "F2", 216 },
    { "G2", 202 },
    { "A2", 191 },
    { "B2", 178 },
    { "C3", 166 },
    { "D3", 154 },
    { "E3", 144 },
    { "F3", 128 },
    { "G3", 118 },
    { "A3", 104 },
    { "B3", 90 },
    { "C4", 77 },
    { "D4", 67 },
};

const Row kViolinRows[] = {
    { "G3", 317 },
    { "A3", 297 },
    { "B3", 282 },
    { "C4", 268 },
    { "D4", 252 },
    { "E4", 238 },
    { "F4", 224 },
    { "G4", 210 },
    { "A4", 195 },
    { "B4", 180 },
    { "C5", 166 },
    { "D5", 151 },
    { "E5", 135 },
    { "F5", 120 },
    { "G5", 109 },
    { "A5", 94 },
    { "B5", 76 },
};

const Row kMandolinRows[] = {
    { "G3", 315 },
    { "A3", 302 },
    { "B3", 288 },
    { "C4", 273 },
    { "D4", 263 },
    { "E4", 248 },
    { "F4", 234 },
    { "G4", 217 },
    { "A4", 205 },
    { "B4", 190 },
    { "C5", 183 },
    { "D5", 166 },
    { "E5", 158 },
    { "F5", 145 },
    { "G5", 125 },
    { "A5", 109 },
    { "B5", 98 },
    { "C6", 82 },
    { "D6", 71 },
    { "E6", 56 },
    { "F6", 43 },
    { "G6", 29 },
    { "A6", 17 },
};

const Row kBanjoRows[] = {
    { "D3", 321 },
    { "E3", 306 },
    { "F3", 293 },
    { "G3", 280 },
    { "A3", 268 },
    { "B3", 258 },
    { "C4", 245 },
    { "D4", 231 },
    { "E4", 222 },
    { "F4", 210 },
    { "G4", 195 },
    { "A4", 184 },
    { "B4", 173 },
    { "C5", 160 },
    { "D5", 147 },
    { "E5", 135 },
    { "F5", 124 },
    { "G5", 111 },
    { "A5", 101 },
    { "B5", 89 },
    { "C6", 75 },
};

const Row kBalalaikaRows[] = {
    { "E4", 268 },
    { "F4", 252 },
    { "G4", 234 },
    { "A4", 217 },
    { "B4", 201 },
    { "C5", 184 },
    { "D5", 169 },
    { "E5", 152 },
    { "F5", 137 },
    { "G5", 117 },
    { "A5", 103 },
    { "B5", 84 },
    { "C6", 70 },
    { "D6", 51 },
    { "E6", 36 },
};

template <std::size_t N> QVector<QPair<QString, int>> toVector(const Row (&rows)[N])
{
    QVector<QPair<QString, int>> result;
    result.reserve(int(N));
    for (const Row& row : rows)
        result.append(qMakePair(QString::fromLatin1(row.name), row.y));
    return result;
}

} // namespace

float StaffGeometry::lineHeight() const
{
    if (m_lines <= 0)
        return 0.0f;
    return float(m_height) * m_paperHeightFactor / float(m_lines);
}

float StaffGeometry::translation() const
{
    return float(m_translateLines) * lineHeight();
}

float StaffGeometry::lineY(int line) const
{
    return float(line) * lineHeight() - translation();
}

float StaffGeometry::noteWidth() const
{
    return lineHeight() / 1.2f;
}

float StaffGeometry::shortLineWidth() const
{
    return lineHeight() * 1.2f;
}

int StaffGeometry::halfLineIndex(float y) const
{
    const float half = lineHeight() / 2.0f;
    if (half <= 0.0f)
        return 0;
    return int((y + translation()) / half);
}

float StaffGeometry::noteTop(int halfLine) const
{
    const float half = lineHeight() / 2.0f;
    return float(halfLine) * half - translation() - half;
}

bool StaffGeometry::isAboveLimit(float noteTop) const
{
    const float limit = float(int(lineHeight())) * -1.2f + float(m_startLine) * lineHeight() - translation();
    return limit > noteTop;
}

QRect StaffGeometry::noteRect(int widgetWidth, float noteTop) const
{
    const float nw = noteWidth();
    return QRect(int(float(widgetWidth / 2) - nw), int(noteTop), int(2.2f * nw), int(lineHeight()));
}

QPoint StaffGeometry::signBasePoint(int widgetWidth, float noteTop) const
{
    const float nw = noteWidth();
    return QPoint(int(float(widgetWidth / 2) - nw - 1.5f * nw), int(lineHeight() + noteTop));
}

int StaffGeometry::signPixelSize() const
{
    return int(1.5f * lineHeight());
}

QRectF StaffGeometry::signRect(int widgetWidth, float noteTop, const QSize& pictureSize) const
{
    const qreal scale = lineHeight() / qreal(signPictureSpace);
    const qreal noteCentre = noteTop + lineHeight() / 2.0f;
    return QRectF(signBasePoint(widgetWidth, noteTop).x(), noteCentre - signSpacesAbove * lineHeight(),
        pictureSize.width() * scale, pictureSize.height() * scale);
}

QRect StaffGeometry::violinKeyRect() const
{
    const int side = int(8.0f * lineHeight());
    return QRect(0, int(8.0f * lineHeight() - translation()), side, side);
}

QRect StaffGeometry::bassKeyRect() const
{
    const int side = int(4.0f * lineHeight());
    return QRect(0, int(16.0f * lineHeight() - translation()), side, side);
}

bool StaffGeometry::noteOfIndex(int halfLine, int* letterIndex, int* octave)
{
    for (int o = 0; o <= 8; ++o) {
        const int top = kC0Index - 7 * o;
        if (top - 7 < halfLine && halfLine <= top) {
            *letterIndex = top - halfLine;
            *octave = o;
            return true;
        }
    }
    return false;
}

QString StaffGeometry::nameOfIndex(int halfLine)
{
    int letter = 0;
    int octave = 0;
    if (!noteOfIndex(halfLine, &letter, &octave))
        return QString();
    return QLatin1Char(kLetters[letter]) + QString::number(octave);
}

bool StaffGeometry::indexOfName(const QString& name, int* halfLine)
{
    if (name.size() != 2 || !name.at(1).isDigit())
        return false;
    const int letter = QString::fromLatin1(kLetters).indexOf(name.at(0));
    if (letter < 0)
        return false;
    *halfLine = kC0Index - 7 * name.at(1).digitValue() - letter;
    return true;
}

QVector<QPair<QString, int>> StaffGeometry::referenceRows(const QString& instrumentName)
{
    const QString key = instrumentName.toLower();
    if (key == QLatin1String("guitar"))
        return toVector(kGuitarRows);
    if (key == QLatin1String("piano"))
        return toVector(kPianoRows);
    if (key == QLatin1String("ukulele"))
        return toVector(kUkuleleRows);
    if (key == QLatin1String("bass"))
        return toVector(kBassRows);
    if (key == QLatin1String("violin"))
        return toVector(kViolinRows);
    if (key == QLatin1String("mandolin"))
        return toVector(kMandolinRows);
    if (key == QLatin1String("banjo"))
        return toVector(kBanjoRows);
    if (key == QLatin1String("balalaika"))
        return toVector(kBalalaikaRows);
    return {};
}

int StaffGeometry::rowOfNote(const QString& name, int referenceRow) const
{
    const int scaled = int(float(referenceRow) * float(m_height) / float(referenceHeight));
    int target = 0;
    if (!indexOfName(name, &target))
        return scaled;
    // The hand-tuned rows sit well inside their half-line at the reference
    // height, but scaling can carry them over a boundary. Walk towards the
    // note's own half-line; the first row inside it is the nearest one.
    // A half-line is at least one pixel high for any sensible height, and
    // the walk is bounded so a degenerate staff cannot loop.
    const int step = halfLineIndex(float(scaled)) < target ? 1 : -1;
    const int maxSteps = int(lineHeight()) + 2;
    for (int y = scaled, i = 0; i <= maxSteps; y += step, ++i) {
        if (halfLineIndex(float(y)) == target)
            return y;
    }
    return scaled;
}

QMap<QString, int> StaffGeometry::namePositions(const QString& instrumentName) const
{
    QMap<QString, int> positions;
    for (const auto& row : referenceRows(instrumentName))
        positions.insert(row.first, rowOfNote(row.first, row.second));
    return positions;
}

int StaffGeometry::rowFrom(const StaffGeometry& from, int y) const
{
    const float fromHalf = from.lineHeight() / 2.0f;
    const float half = lineHeight() / 2.0f;
    if (fromHalf <= 0.0f || half <= 0.0f)
        return y;
    const int target = from.halfLineIndex(float(y));
    const float place = (float(y) + from.translation()) / fromHalf;
    const int scaled = int(std::floor(place * half - translation()));
    // Rounding may carry the row over a boundary: walk back into the half-line.
    const int step = halfLineIndex(float(scaled)) < target ? 1 : -1;
    const int maxSteps = int(half) + 2;
    for (int row = scaled, i = 0; i <= maxSteps; row += step, ++i) {
        if (halfLineIndex(float(row)) == target)
            return row;
    }
    return scaled;
}

} // namespace QMMusic
