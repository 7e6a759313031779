#pragma once

#include <QStringList>
#include <QTranslator>

namespace zelvor {

// The language of the console's own words while the object lives; Qt's boxes and dialogs speak it as well. Made before
// the first widget.
class UiLanguage {
 public:
    // The languages that the console speaks, the one its words are written in first.
    [[nodiscard]] static QStringList all();
    // The first of these, "el-GR", that the console speaks; English where it speaks none.
    [[nodiscard]] static QString firstSpoken(const QStringList& wanted);

    // code: one of all().
    explicit UiLanguage(const QString& code);

 private:
    QTranslator console_;
    QTranslator qt_;
};

}  // namespace zelvor
