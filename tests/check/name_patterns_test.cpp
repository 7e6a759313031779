#include "app_check/name_patterns.h"

#include <gtest/gtest.h>

#include "app_check/placeholder_scan.h"

using namespace Qt::StringLiterals;
using namespace zelvor;

// "*" stands for a placeholder. Both ways round, a name and a form, or two forms, may be the same.
TEST(NamePatterns, FindWhatMayBeTheSame) {
    const std::tuple<QString, QString, bool> rows[]{
        {u"@H7"_s, u"@H*"_s, true},        {u"@H"_s, u"@H*"_s, true},        {u"@A7"_s, u"@H*"_s, false},
        {u"@H7X"_s, u"@H*Y"_s, false},     {u"@H7X"_s, u"*X"_s, true},       {u"@aba"_s, u"@ab*ba"_s, false},
        {u"@abba"_s, u"@ab*ba"_s, true},   {u"@a1b2c"_s, u"@a*b*c"_s, true}, {u"@a1b2c"_s, u"@a*2*b*c"_s, false},
        {u"@ab1"_s, u"@a*b*b*1"_s, false}, {u"@a*"_s, u"@ab*"_s, true},      {u"@ab*x"_s, u"@a*yx"_s, true},
        {u"@ab*x"_s, u"@ac*"_s, false},    {u"@*xy"_s, u"@*zy"_s, false},    {u"@a*1*z"_s, u"@*2*"_s, true},
    };
    for (auto [name, form, same] : rows) {
        name.replace(u'*', kAnything);
        form.replace(u'*', kAnything);
        NamePatterns forms;
        // Neighbours that must neither hide it nor be taken for it.
        for (const auto* other : {u"@Q*Q", u"@Q*1*Q", u"@*Q", u"*Q"}) {
            forms.insert(QString::fromUtf16(other).replace(u'*', kAnything));
        }
        forms.insert(form);
        EXPECT_EQ(forms.mayHold(name), same) << qPrintable(name + u' ' + form);
        if (name.contains(kAnything)) continue;
        ExactNames names;
        for (const auto* other : {u"@", u"@0", u"@zz", u"zz"}) names.insert(QString::fromUtf16(other));
        names.insert(name);
        EXPECT_EQ(names.anyIs(form), same) << qPrintable(name + u' ' + form);
    }
}
