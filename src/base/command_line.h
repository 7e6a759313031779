#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>
#include <vector>

namespace zelvor {

// A program's own "--" options, told from the rest of its command line.
class CommandLine {
 public:
    struct Option {
        QString name;  // "--app-folder"
        bool takesValue = false;
    };

    // arguments: without the program's name. "--name VALUE" and "--name=VALUE" are both taken; "--" ends the options.
    CommandLine(const QStringList& arguments, std::span<const Option> options);

    [[nodiscard]] bool has(QStringView name) const;
    // The last value given, nullopt when the option is absent.
    [[nodiscard]] std::optional<QString> value(QStringView name) const;
    // All values given, in order.
    [[nodiscard]] QStringList values(QStringView name) const;
    // Of several flags the one given last; empty when none was.
    [[nodiscard]] QString lastOf(std::span<const QStringView> names) const;

    // What is left when the options and their values are taken away, in order.
    [[nodiscard]] const QStringList& rest() const { return rest_; }
    // The rest as one text, blanks between: what a program tests for "/PREVIEW" and for a leading number.
    [[nodiscard]] QString restText() const { return rest_.join(QLatin1Char(' ')); }
    // The first argument that begins with "-", stands before "--" and is no option of ours; empty when there is none.
    [[nodiscard]] const QString& unknownOption() const { return unknownOption_; }
    // The first option whose value is missing; empty when there is none.
    [[nodiscard]] const QString& optionWithoutValue() const { return optionWithoutValue_; }

 private:
    struct Given {
        QString name;
        QString value;
    };
    std::vector<Given> given_;
    QStringList rest_;
    QString unknownOption_;
    QString optionWithoutValue_;
};

// True when the text holds "/PREVIEW" anywhere, in any case.
bool isPreview(const QString& commandLineText);

// The number that the text begins with, read behind a "0": 0 for an empty text or one that begins with anything else.
int leadingNumber(const QString& commandLineText);

}  // namespace zelvor
