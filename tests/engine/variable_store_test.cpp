#include "engine/variable_store.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

QString order(const VariableStore& store) {
    QStringList names;
    store.forEach([&](const QString& name, const Value& value) { names += name + u'=' + value.text(); });
    return names.join(u' ');
}

TEST(Variables, KeepTheOrderOfTheirLastSetting) {
    VariableStore store;
    store.SetVar(u"@A", 1);
    store.SetVar(u"@a", 2);
    store.SetVar(u"@B", 3);
    EXPECT_TRUE(store.GetVar(u"@NEW").isEmpty());
    store.SetVar(u"@A", 4);
    EXPECT_EQ(u"@a=2 @B=3 @NEW= @A=4"_s, order(store));
    store.remove(u"@B");
    store.remove(u"@none");
    store.SetVar(u"@C", 5);
    EXPECT_EQ(u"@a=2 @NEW= @A=4 @C=5"_s, order(store));
    store.clear();
    EXPECT_EQ(0, store.size());
    store.SetVar(u"@C", 6);
    EXPECT_EQ(u"@C=6"_s, order(store));
}

TEST(Variables, AreRemovedByPrefixAlsoWhenAddedAfterTheFirstRemoval) {
    VariableStore store;
    for (const QStringView name : {u"@P_1", u"@P", u"@P_2_1", u"@PX", u"@p_1"}) store.SetVar(name, 0);
    store.RemoveVarsWithPrefix(u"@P_");
    EXPECT_EQ(u"@P=0 @PX=0 @p_1=0"_s, order(store));
    store.SetVar(u"@P_3", 0);
    store.remove(u"@PX");
    store.SetVar(u"@P", 1);
    store.RemoveVarsWithPrefix(u"@P");
    EXPECT_EQ(u"@p_1=0"_s, order(store));
}

TEST(Variables, BehaveAsASimpleListDoes) {
    VariableStore store;
    std::vector<std::pair<QString, int>> model;
    const auto drop = [&](const QString& name) {
        std::erase_if(model, [&](const auto& entry) { return entry.first == name; });
    };
    std::mt19937 random(1);
    for (int step = 0; step < 20000; ++step) {
        const QString name = u"@N%1_%2"_s.arg(random() % 7).arg(random() % 9);
        switch (random() % 8) {
            case 0:
                store.remove(name);
                drop(name);
                break;
            case 1: {
                const QString prefix = name.left(4);
                store.RemoveVarsWithPrefix(prefix);
                std::erase_if(model, [&](const auto& entry) { return entry.first.startsWith(prefix); });
                break;
            }
            default:
                store.SetVar(name, step);
                drop(name);
                model.emplace_back(name, step);
        }
        ASSERT_EQ(static_cast<qsizetype>(model.size()), store.size());
    }
    QStringList expected;
    for (const auto& [name, value] : model) expected += name + u'=' + QString::number(value);
    EXPECT_EQ(expected.join(u' '), order(store));
}

}  // namespace
}  // namespace zelvor
