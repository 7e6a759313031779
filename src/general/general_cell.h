#pragma once

#include <QString>
#include <QStringList>

namespace zelvor {

// The text of a value cell: a plain value, a value with its choices ("ON:ON|OFF"), or a value marked as a folder or a
// file ("[folder]C:/clips").
class GeneralCell {
 public:
    enum class Kind { Plain, Choice, Folder, File };

    explicit GeneralCell(QString text) : text_(std::move(text)) {}

    // False for choices without a value and ":" before them: Apply would take all of it for the value.
    static bool isWellFormed(QStringView text);

    // A cell that holds "|" is a choice, whatever else it holds.
    [[nodiscard]] Kind kind() const;
    // What the cell shows and its variable gets: without the list and without the markers.
    [[nodiscard]] QString value() const;
    // What may be chosen; empty for a cell that is no choice.
    [[nodiscard]] QStringList choices() const;
    // The cell's text with another value: its list or its marker stays.
    [[nodiscard]] QString withValue(const QString& value) const;

 private:
    QString text_;
};

}  // namespace zelvor
