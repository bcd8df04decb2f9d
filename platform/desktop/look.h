#pragma once

#include <QColor>
#include <QFont>

namespace platform {

/// What a piece of text is for; its size and weight follow from that, the same on every screen.
enum class TextRole {
    Title,
    Heading,
    Body,
    Small,
    Caption,
    Prompt,
    Answer,
    Sentence,
    Choice,
    Letter,
    Meaning,
    Row,
    DrillBox,
    DrillPhrase
};

namespace colour {
inline constexpr QRgb black = 0xff000000;
inline constexpr QRgb red = 0xffff0000;
inline constexpr QRgb white = 0xffffffff;
inline constexpr QRgb paleCyan = 0xffc0ffff;
inline constexpr QRgb lightOrange = 0xffffc080;
inline constexpr QRgb accent = 0xff17626b;
inline constexpr QRgb paper = 0xfffffefb;
inline constexpr QRgb backdropTop = 0xffe3ebe9;
inline constexpr QRgb backdropBottom = 0xffcfdcda;
inline constexpr QRgb line = 0xffddd6c6;
inline constexpr QRgb boxLine = 0xff8aa9a6;
inline constexpr QRgb choice = 0xffe8f4f3;
inline constexpr QRgb choiceLine = 0xff7fb0ae;
}  // namespace colour

/// The font of a role for a form drawn at the given scale.
QFont roleFont(TextRole role, double scale);

/// Loads a role's font and the shapes of a text's letters before they are to be shown.
void drawAhead(TextRole role, const QString& text);

/// Makes the course's Korean font resolve to one family for Latin and Hangul on this machine, and gives the
/// application its palette and style. Called once, before the first window.
void setUpLook();

}  // namespace platform
