#include "app_check/name_patterns.h"

#include <gtest/gtest.h>

#include <array>

#include "app_check/placeholder_scan.h"

using namespace Qt::StringLiterals;
using namespace zelvor;

// "*" stands for a placeholder. Both ways round, a name and a form, or two forms, may be the same.
TEST(NamePatterns, FindWhatMayBeTheSame) {
    struct Row {
        QString name;
        QString form;
        bool same;
    };
    const std::array rows{
        Row{u"@H7"_s, u"@H*"_s, true},          Row{u"@H"_s, u"@H*"_s, true},
        Row{u"@A7"_s, u"@H*"_s, false},         Row{u"@H7X"_s, u"@H*Y"_s, false},
        Row{u"@H7X"_s, u"*X"_s, true},          Row{u"@aba"_s, u"@ab*ba"_s, false},
        Row{u"@abba"_s, u"@ab*ba"_s, true},     Row{u"@a1b2c"_s, u"@a*b*c"_s, true},
        Row{u"@a1b2c"_s, u"@a*2*b*c"_s, false}, Row{u"@ab1"_s, u"@a*b*b*1"_s, false},
        Row{u"@a*"_s, u"@ab*"_s, true},         Row{u"@ab*x"_s, u"@a*yx"_s, true},
        Row{u"@ab*x"_s, u"@ac*"_s, false},      Row{u"@*xy"_s, u"@*zy"_s, false},
        Row{u"@a*1*z"_s, u"@*2*"_s, true},
    };
    for (Row row : rows) {
        row.name.replace(u'*', kAnything);
        row.form.replace(u'*', kAnything);
        NamePatterns forms;
        // Neighbours that must neither hide it nor be taken for it.
        for (const auto* other : {u"@Q*Q", u"@Q*1*Q", u"@*Q", u"*Q"}) {
            forms.insert(QString::fromUtf16(other).replace(u'*', kAnything));
        }
        forms.insert(row.form);
        EXPECT_EQ(forms.mayHold(row.name), row.same) << qPrintable(row.name + u' ' + row.form);
        if (row.name.contains(kAnything)) continue;
        ExactNames names;
        for (const auto* other : {u"@", u"@0", u"@zz", u"zz"}) names.insert(QString::fromUtf16(other));
        names.insert(row.name);
        EXPECT_EQ(names.anyIs(row.form), row.same) << qPrintable(row.name + u' ' + row.form);
    }
}
