#include "general_rules/grid_file.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <algorithm>
#include <optional>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QByteArray kVersionLine = "zelvor-grid 1";
const QByteArray kByteOrderMark = "\xEF\xBB\xBF";

struct Escape {
    char16_t unit;
    char16_t letter;  // what stands behind a backslash for it
};
constexpr std::array kEscapes{Escape{u'\\', u'\\'}, Escape{u'\t', u't'}, Escape{u'\r', u'r'}, Escape{u'\n', u'n'}};

QString escaped(const QString& field) {
    QString text;
    text.reserve(field.size());
    for (const QChar unit : field) {
        const auto* escape =
            std::find_if(kEscapes.begin(), kEscapes.end(), [&](const Escape& e) { return e.unit == unit; });
        if (escape != kEscapes.end()) {
            text += u'\\';
            text += escape->letter;
        } else {
            text += unit;
        }
    }
    return text;
}

std::optional<QString> unescaped(QStringView field) {
    QString text;
    text.reserve(field.size());
    for (qsizetype at = 0; at < field.size(); ++at) {
        if (field[at] != u'\\') {
            text += field[at];
            continue;
        }
        const QChar letter = ++at < field.size() ? field[at] : QChar();
        const auto* escape =
            std::find_if(kEscapes.begin(), kEscapes.end(), [&](const Escape& e) { return e.letter == letter; });
        if (escape == kEscapes.end()) return std::nullopt;
        text += escape->unit;
    }
    return text;
}

// Empty when the line is sound, else what is wrong with it.
QString readRow(const QByteArray& line, GeneralRow& row) {
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    const QString text = utf8.decode(line);
    if (utf8.hasError()) return translate("general", "not UTF-8");
    const QStringList fields = text.split(u'\t');
    if (fields.size() != general_column::kCount)
        return translate("general", "%1 fields instead of 4").arg(fields.size());
    for (int column = 0; column < general_column::kCount; ++column) {
        const std::optional<QString> field = unescaped(fields[column]);
        if (!field) return translate("general", "unknown escape in field %1").arg(column + 1);
        row[column] = *field;
    }
    return {};
}

}  // namespace

QByteArray gridBytes(const std::vector<GeneralRow>& rows) {
    QString text = QString::fromLatin1(kVersionLine) + u'\n';
    for (const GeneralRow& row : rows) {
        QStringList fields;
        for (const QString& field : row) fields += escaped(field);
        text += fields.join(u'\t') + u'\n';
    }
    return text.toUtf8();
}

GridReading readGrid(const QByteArray& bytes) {
    GridReading reading;
    QList<QByteArray> lines = bytes.split('\n');
    const QByteArray cutOff = lines.takeLast();
    for (QByteArray& line : lines) {
        if (line.endsWith('\r')) line.chop(1);
    }
    if (!lines.isEmpty() && lines[0].startsWith(kByteOrderMark)) lines[0].remove(0, kByteOrderMark.size());
    const auto damaged = [&](qsizetype line, const QString& damage) {
        reading.damagedLine = static_cast<int>(line);
        reading.damage = damage;
        return reading;
    };
    if (lines.isEmpty() || lines[0] != kVersionLine)
        return damaged(1, translate("general", "no version line known here"));
    for (qsizetype at = 1; at < lines.size(); ++at) {
        GeneralRow row;
        const QString damage = readRow(lines[at], row);
        if (!damage.isEmpty()) return damaged(at + 1, damage);
        reading.rows.push_back(std::move(row));
    }
    if (!cutOff.isEmpty()) return damaged(lines.size() + 1, translate("general", "cut off"));
    return reading;
}

ImportedRows importRows(const QStringList& lines) {
    static const QRegularExpression kSeparator(u"[,\t]"_s);
    ImportedRows imported;
    for (qsizetype at = 0; at < lines.size(); ++at) {
        const QStringList fields = lines[at].split(kSeparator);
        GeneralRow row;
        for (int column = 0; column < general_column::kCount; ++column) row[column] = fields.value(column);
        imported.rows.push_back(std::move(row));
        const qsizetype excess = fields.size() - general_column::kCount;
        if (excess == 0) continue;
        const QString text = excess < 0 ? translate("general", "%1 fields, filled with empty ones")
                                        : translate("general", "%1 fields, those after the fourth left out");
        imported.remarks.push_back({static_cast<int>(at) + 1, text.arg(fields.size())});
    }
    return imported;
}

}  // namespace zelvor
