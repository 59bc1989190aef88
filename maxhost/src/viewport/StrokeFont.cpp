#include "maxhost/src/viewport/StrokeFont.h"

#include <cctype>
#include <cmath>
#include <cstring>

namespace maxhost {

namespace {

constexpr double kCapHeight = 6, kAdvance = 6, kLetterWidth = 4;
constexpr float kNearest = 1e30f;

struct Glyph {
    char letter;
    /// Pairs of digits, x from 0 to 4 and y from 0 to 6; a blank lifts the pen.
    const char* strokes;
};

constexpr Glyph kGlyphs[] = {
    {' ', ""},
    {'0', "160501103041453616"},
    {'1', "152620 1030"},
    {'2', "05163645440040"},
    {'3', "0516364544334241301001 1333"},
    {'4', "30360242"},
    {'5', "460603334241301001"},
    {'6', "4536160501103041423303"},
    {'7', "064610"},
    {'8', "13040516364544331302011030414233"},
    {'9', "0110304145361605041343"},
    {'A', "002640 1232"},
    {'B', "000636454433 033342413000"},
    {'C', "4536160501103041"},
    {'D', "00062644422000"},
    {'E', "46060040 0333"},
    {'F', "460600 0333"},
    {'G', "45361605011030414323"},
    {'H', "0600 4640 0343"},
    {'I', "1636 2620 1030"},
    {'J', "4641301001"},
    {'K', "0600 4602 1340"},
    {'L', "060040"},
    {'M', "0006234640"},
    {'N', "00064046"},
    {'O', "160501103041453616"},
    {'P', "00063645443303"},
    {'Q', "160501103041453616 2240"},
    {'R', "00063645443303 2340"},
    {'S', "453616050413334241301001"},
    {'T', "0646 2620"},
    {'U', "060110304146"},
    {'V', "062046"},
    {'W', "0610233046"},
    {'X', "0640 0046"},
    {'Y', "062346 2320"},
    {'Z', "06460040"},
    {'.', "1020"},
    {',', "2110"},
    {':', "1121 1424"},
    {'-', "1333"},
    {'_', "0040"},
    {'/', "0046"},
    {'+', "2125 0343"},
    {'=', "0242 0444"},
    {'(', "36252130"},
    {')', "16252110"},
    {'%', "0046 0506161505 3031414030"},
    {'#', "1016 3036 0242 0444"},
};

const char* strokesOf(char letter) {
    const auto capital = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    for (const Glyph& glyph : kGlyphs)
        if (glyph.letter == capital) return glyph.strokes;
    return "0006464000";
}

/// Draws one stroke, lengthened by half its width so that bends are filled.
void stroke(Rasterizer& target, ScreenPoint a, ScreenPoint b, double width, const LinearColor& color) {
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    const double x = (b.x - a.x) / length * width / 2, y = (b.y - a.y) / length * width / 2;
    target.line({a.x - x, a.y - y, kNearest}, {b.x + x, b.y + y, kNearest}, width, color);
}

}  // namespace

double StrokeFont::width(const std::string& text, double height) {
    if (text.empty()) return 0;
    return (static_cast<double>(text.size() - 1) * kAdvance + kLetterWidth) * height / kCapHeight;
}

void StrokeFont::write(Rasterizer& target, const std::string& text, double x, double y, double height,
                       const LinearColor& color) {
    const double unit = height / kCapHeight;
    for (const char letter : text) {
        const char* pen = strokesOf(letter);
        for (; std::strlen(pen) >= 4; pen += pen[2] == ' ' ? 3 : 2) {
            if (pen[2] == ' ') continue;
            const ScreenPoint a{x + (pen[0] - '0') * unit, y - (pen[1] - '0') * unit, 0};
            const ScreenPoint b{x + (pen[2] - '0') * unit, y - (pen[3] - '0') * unit, 0};
            stroke(target, a, b, 0.85 * unit, color);
        }
        x += kAdvance * unit;
    }
}

}  // namespace maxhost
