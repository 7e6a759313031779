#include "app_cards/font_reading.h"

#include <QFontDatabase>
#include <QStringList>

#ifdef ZELVOR_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace zelvor {

std::future<void> readFontFiles() {
    return std::async([] {
#ifdef ZELVOR_FONTCONFIG
        FcInit();
#endif
    });
}

std::future<void> readFontList(const std::future<void>& files) {
    return std::async([&files] {
        files.wait();
        QFontDatabase::families();
    });
}

}  // namespace zelvor
