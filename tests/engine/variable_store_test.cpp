#include "engine/variable_store.h"

#include <gtest/gtest.h>

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
    EXPECT_TRUE(store.GetVar(u"@NEW").isEmpty());
    store.SetVar(u"@A", 4);
    EXPECT_EQ(u"@a=2 @NEW= @A=4"_s, order(store));
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
        switch (random() % 9) {
            case 0:
                store.remove(name);
                drop(name);
                break;
            case 1: {
                const QString prefix = name.left(3 + step % 2);
                store.RemoveVarsWithPrefix(prefix);
                std::erase_if(model, [&](const auto& entry) { return entry.first.startsWith(prefix); });
                break;
            }
            case 2:
                if (random() % 20 != 0) break;
                store.clear();
                model.clear();
                ASSERT_TRUE(store.find(name) == nullptr && store.GetVar(name).isEmpty());
                store.remove(name);
                break;
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
