#include <algorithm>
#include <array>
#include <cmath>

#include "expr/evaluation_table.h"
#include "plain/number.h"

namespace zelvor::expr {

namespace {

constexpr std::array<std::string_view, 15> kHeadings{"Fun",    "ArgTop",    "A1 Idx",     "Arg1 Name", "Arg1 Value",
                                                     "A2 Idx", "Arg2 Name", "Arg2 Value", "ArgOf",     "ArgIdx",
                                                     "Value",  "PriLvl",    "PosInExpr",  "PriIdx",    "Cond"};
using Line = std::array<std::string, kHeadings.size()>;

// Index, name and value of an argument, into three neighbouring cells.
void describeArgument(const EvaluationTable& table, std::uint32_t slot, std::string* cells) {
    if (slot < EvaluationTable::kFirstResult) {
        cells[0] = std::to_string(slot + 1);
        cells[1] = table.variables[slot].name;
    } else if (slot < EvaluationTable::kFirstNumber) {
        cells[0] = std::to_string(slot - EvaluationTable::kFirstResult + 1);
        cells[1] = std::string("(row)");
    } else {
        cells[1] = std::string("(number)");
    }
    if (!std::isnan(table.slots[slot])) cells[2] = plain::numberText(table.slots[slot]);
}

Line describeRow(const EvaluationTable& table, std::size_t index, std::string_view formula) {
    const Row& row = table.rows[index];
    Line line;
    line[0] = operationName(row);
    line[1] = std::to_string(row.argumentCount);
    if (row.argumentCount > 0) describeArgument(table, row.first, &line[2]);
    if (row.argumentCount > 1) describeArgument(table, row.second, &line[5]);
    if (!std::isnan(table.slots[row.result])) line[10] = plain::numberText(table.slots[row.result]);
    line[11] = std::to_string(row.priority);
    line[12] = std::to_string(characterPosition(formula, row.position));
    line[13] = std::to_string(index + 1);
    line[14] = std::to_string(static_cast<int>(isComparison(row.operation)));
    return line;
}

// Tells each argument that is a row's result which row takes it, and as which argument.
void describeConsumers(const EvaluationTable& table, std::vector<Line>& lines) {
    for (std::size_t index = 0; index < table.rows.size(); ++index) {
        const Row& row = table.rows[index];
        for (std::uint32_t i = 0; i < row.argumentCount; ++i) {
            const std::uint32_t slot = table.arguments[row.argumentsAt + i];
            if (slot < EvaluationTable::kFirstResult || slot >= EvaluationTable::kFirstNumber) continue;
            Line& line = lines[slot - EvaluationTable::kFirstResult];
            line[8] = std::to_string(index + 1);
            line[9] = std::to_string(i + 1);
        }
    }
}

}  // namespace

int characterPosition(std::string_view text, std::size_t byte) {
    int position = 1;
    for (const char c : text.substr(0, byte)) {
        // Bytes that continue a character do not count.
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) ++position;
    }
    return position;
}

std::string dumpTable(const EvaluationTable& table, std::string_view formula) {
    std::vector<Line> lines;
    lines.reserve(table.rows.size());
    for (std::size_t i = 0; i < table.rows.size(); ++i) lines.push_back(describeRow(table, i, formula));
    describeConsumers(table, lines);

    std::array<std::size_t, kHeadings.size()> widths{};
    for (std::size_t column = 0; column < kHeadings.size(); ++column) {
        widths[column] = kHeadings[column].size();
        for (const Line& line : lines) widths[column] = std::max(widths[column], line[column].size());
    }

    std::string text;
    const auto addCell = [&](std::size_t column, std::string_view cell) {
        text += cell;
        if (column + 1 == kHeadings.size()) {
            text += '\n';
        } else {
            text.append(widths[column] - cell.size() + 2, ' ');
        }
    };
    for (std::size_t column = 0; column < kHeadings.size(); ++column) addCell(column, kHeadings[column]);
    for (const Line& line : lines) {
        for (std::size_t column = 0; column < kHeadings.size(); ++column) addCell(column, line[column]);
    }
    return text;
}

}  // namespace zelvor::expr
