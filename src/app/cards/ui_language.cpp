#include "app_cards/ui_language.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace zelvor {

QStringList UiLanguage::all() {
    return {u"en"_s, u"el"_s};
}

QString UiLanguage::firstSpoken(const QStringList& wanted) {
    for (const QString& language : wanted) {
        QString code = language.section(u'-', 0, 0);
        if (all().contains(code)) return code;
    }
    return all().constFirst();
}

UiLanguage::UiLanguage(const QString& code) {
    if (code == all().constFirst()) return;
    const auto install = [](QTranslator& texts, const QString& file) {
        if (texts.load(file)) QCoreApplication::installTranslator(&texts);
    };
    install(console_, u":/translations/zelvor-cards_"_s + code + u".qm"_s);
    install(qt_, u":/translations/qt_"_s + code + u".qm"_s);
}

}  // namespace zelvor
