#include "base/letters.h"

#include <algorithm>
#include <array>

namespace zelvor {

QString withoutAccents(QStringView text) {
    QString plain;
    for (const QChar c : text.toString().normalized(QString::NormalizationForm_D)) {
        if (!c.isMark()) plain += c;
    }
    return plain;
}

QString foldedLetters(QStringView text) {
    // From alpha to omega, the sigma of a word's end among them.
    static constexpr std::array<QStringView, 25> kSounds{u"a", u"v", u"g", u"d", u"e",  u"z",  u"i", u"th", u"i",
                                                         u"k", u"l", u"m", u"n", u"x",  u"o",  u"p", u"r",  u"s",
                                                         u"s", u"t", u"y", u"f", u"ch", u"ps", u"o"};
    // Most names of scripts and variables.
    if (std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; })) return text.toString().toLower();
    QString folded;
    for (const QChar c : withoutAccents(text)) {
        const QChar small = c.toLower();
        if (small >= u'α' && small <= u'ω') {
            folded += kSounds.at(small.unicode() - u'α');
        } else {
            folded += small;
        }
    }
    return folded;
}

}  // namespace zelvor
