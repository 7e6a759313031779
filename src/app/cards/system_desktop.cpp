#include "app_cards/system_desktop.h"

#include <QDesktopServices>
#include <QUrl>

#include "base/run_time_error.h"

namespace zelvor {

void SystemDesktop::open(const QString& target) {
    const QUrl url =
        folder_.exists(target) ? QUrl::fromLocalFile(folder_.resolve(target)) : QUrl::fromUserInput(target);
    if (!QDesktopServices::openUrl(url)) throw RunTimeError(ErrorNumber::FileNotFound, target);
}

void SystemDesktop::loadForm(const Asker& asker, const QString& name) {
    const auto form = forms_.find(name);
    if (form == forms_.end()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, name);
    form->second(asker);
}

}  // namespace zelvor
