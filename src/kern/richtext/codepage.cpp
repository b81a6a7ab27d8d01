#include "kern/richtext/codepage.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "kern/grund/utf8.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

// The characters of the bytes 80 to FF, 32 a line. A byte without a character has the control character of
// its number, above 9F a zero.
constexpr std::u16string_view ab80In1250{
    u"€\u0081‚\u0083„…†‡\u0088‰Š‹ŚŤŽŹ\u0090‘’“”•–—\u0098™š›śťžź"
    u"\u00a0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00ad®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
    u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
    u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙",
    0x80};

constexpr std::u16string_view ab80In1251{
    u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\u0098™љ›њќћџ"
    u"\u00a0ЎўЈ¤Ґ¦§Ё©Є«¬\u00ad®Ї°±Ііґµ¶·ё№є»јЅѕї"
    u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмнопрстуфхцчшщъыьэюя",
    0x80};

constexpr std::u16string_view ab80In1253{
    u"€\u0081‚ƒ„…†‡\u0088‰\u008a‹\u008c\u008d\u008e\u008f\u0090‘’“”•–—\u0098™\u009a›\u009c\u009d\u009e\u009f"
    u"\u00a0΅Ά£¤¥¦§¨©\0«¬\u00ad®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
    u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ\0ΣΤΥΦΧΨΩΪΫάέήί"
    u"ΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ\0",
    0x80};

constexpr std::u16string_view ab80In1254{
    u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008d\u008e\u008f\u0090‘’“”•–—˜™š›œ\u009d\u009eŸ"
    u"\u00a0¡¢£¤¥¦§¨©ª«¬\u00ad®¯°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
    u"àáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ",
    0x80};

constexpr std::u16string_view ab80In1257{
    u"€\u0081‚\u0083„…†‡\u0088‰\u008a‹\u008c¨ˇ¸\u0090‘’“”•–—\u0098™\u009a›\u009c¯˛\u009f"
    u"\u00a0\0¢£¤\0¦§Ø©Ŗ«¬\u00ad®Æ°±²³´µ¶·ø¹ŗ»¼½¾æ"
    u"ĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽß"
    u"ąįāćäåęēčéźėģķīļšńņóōõö÷ųłśūüżž˙",
    0x80};

// The characters of the bytes 20 to FF, 32 a line.
constexpr std::u16string_view ab20InSymbol{
    u" !∀#∃%&∋()∗+,−./0123456789:;<=>?"
    u"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"
    u"‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ{|}∼\0"
    u"\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
    u"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵"
    u"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"
    u"◊〈®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪\0〉∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭\0",
    0xE0};

struct Nummer {
    int nummer;
    Codepage codepage;
};

constexpr std::array<Nummer, 6> ansinummern{{
    {1250, Codepage::windows1250},
    {1251, Codepage::windows1251},
    {1252, Codepage::windows1252},
    {1253, Codepage::windows1253},
    {1254, Codepage::windows1254},
    {1257, Codepage::windows1257},
}};

constexpr std::array<Nummer, 8> zeichensaetze{{
    {0, Codepage::windows1252},
    {1, Codepage::windows1252},
    {2, Codepage::symbol},
    {161, Codepage::windows1253},
    {162, Codepage::windows1254},
    {186, Codepage::windows1257},
    {204, Codepage::windows1251},
    {238, Codepage::windows1250},
}};

template <std::size_t anzahl>
Codepage Suche(const std::array<Nummer, anzahl>& liste, int nummer, Codepage sonst) {
    const auto gleich = [nummer](const Nummer& eintrag) { return eintrag.nummer == nummer; };
    const auto fund = std::find_if(liste.begin(), liste.end(), gleich);
    return fund == liste.end() ? sonst : fund->codepage;
}

char32_t Windows1252Zeichen(unsigned char byte) {
    const char zeichen = static_cast<char>(byte);
    return Utf8Lesen(NachUtf8({&zeichen, 1}))->codepunkt;
}

}  // namespace

Codepage CodepageAusNummer(int nummer) {
    return Suche(ansinummern, nummer, Codepage::windows1252);
}

Codepage CodepageAusZeichensatz(int fcharset, Codepage ansi) {
    return Suche(zeichensaetze, fcharset, ansi);
}

char32_t Zeichen(Codepage codepage, unsigned char byte) {
    if (codepage == Codepage::symbol) return byte < 0x20 ? byte : ab20InSymbol[byte - 0x20U];
    if (byte < 0x80) return byte;
    const std::size_t stelle = byte - 0x80U;
    switch (codepage) {
        case Codepage::windows1250:
            return ab80In1250[stelle];
        case Codepage::windows1251:
            return ab80In1251[stelle];
        case Codepage::windows1253:
            return ab80In1253[stelle];
        case Codepage::windows1254:
            return ab80In1254[stelle];
        case Codepage::windows1257:
            return ab80In1257[stelle];
        case Codepage::eigene:
            return 0xF000U + byte;
        default:
            return Windows1252Zeichen(byte);
    }
}

}  // namespace zinfolio
