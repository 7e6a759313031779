#include "data/odbc_statement.h"

#include <algorithm>
#include <array>

namespace zelvor::odbc {

namespace {

constexpr SQLULEN kShortText = 127;  // characters, of up to four bytes each
constexpr SQLLEN kTextBuffer = (kShortText + 1) * 4;
constexpr SQLLEN kNumberBuffer = 96;

}  // namespace

Statement::Statement(SQLHANDLE connection, int secondsAllowed) : handle_(SQL_HANDLE_STMT, connection) {
    SQLSetStmtAttr(handle_.raw(), SQL_ATTR_QUERY_TIMEOUT, attributeValue(secondsAllowed), 0);
}

bool Statement::execute(const QByteArray& sql) {
    auto* text = reinterpret_cast<SQLCHAR*>(const_cast<char*>(sql.constData()));
    const SQLRETURN result = SQLExecDirect(handle_.raw(), text, static_cast<SQLINTEGER>(sql.size()));
    // An UPDATE that met no row is no failure.
    metNone_ = result == SQL_NO_DATA;
    return SQL_SUCCEEDED(result) || metNone_;
}

std::optional<int> Statement::columnCount() const {
    if (metNone_) return 0;
    SQLSMALLINT count = 0;
    if (!SQL_SUCCEEDED(SQLNumResultCols(handle_.raw(), &count))) return std::nullopt;
    return count;
}

bool Statement::readRows(CharacterSet& characterSet, Rows& rows, const std::atomic<bool>& stop) {
    const std::optional<int> found = columnCount();
    if (!found) return false;
    const int count = *found;
    columns_.resize(count);
    for (int i = 0; i < count; ++i) {
        if (!describeColumn(static_cast<SQLUSMALLINT>(i + 1), characterSet, rows)) return false;
    }
    SQLRETURN result = SQLFetch(handle_.raw());
    for (; SQL_SUCCEEDED(result) && !stop; result = SQLFetch(handle_.raw())) {
        for (int i = 0; i < count; ++i) {
            if (!readCell(static_cast<SQLUSMALLINT>(i + 1), columns_[i], characterSet, rows)) return false;
        }
    }
    return stop || result == SQL_NO_DATA;
}

bool Statement::describeColumn(SQLUSMALLINT number, CharacterSet& characterSet, Rows& rows) {
    std::array<SQLCHAR, 512> name{};
    SQLSMALLINT nameLength = 0;
    SQLSMALLINT sqlType = SQL_VARCHAR;
    SQLULEN size = 0;
    SQLSMALLINT decimals = 0;
    SQLSMALLINT nullable = 0;
    if (!SQL_SUCCEEDED(SQLDescribeCol(handle_.raw(), number, name.data(), name.size(), &nameLength, &sqlType, &size,
                                      &decimals, &nullable))) {
        return false;
    }
    rows.columns += characterSet.decode(reinterpret_cast<const char*>(name.data()));

    Column& column = columns_[number - 1];
    column.kind = columnKind(sqlType);
    column.cType = column.kind == ColumnKind::Binary ? SQL_C_BINARY : SQL_C_CHAR;
    const bool isText = column.kind == ColumnKind::Text || column.kind == ColumnKind::Binary;
    column.capacity = isText ? kTextBuffer : kNumberBuffer;
    column.buffer = std::make_unique<char[]>(column.capacity);
    return SQL_SUCCEEDED(
        SQLBindCol(handle_.raw(), number, column.cType, column.buffer.get(), column.capacity, &column.length));
}

bool Statement::Column::isCut() const {
    const SQLLEN room = cType == SQL_C_CHAR ? capacity - 1 : capacity;
    return length == SQL_NO_TOTAL || length > room;
}

bool Statement::readCell(SQLUSMALLINT number, Column& column, CharacterSet& characterSet, Rows& rows) {
    if (column.length == SQL_NULL_DATA) {
        rows.cells.emplace_back(Value::Null{});
    } else if (column.isCut()) {
        QByteArray bytes;
        if (!readLongCell(number, column, bytes)) return false;
        rows.cells.push_back(cellValue(column.kind, bytes, characterSet));
    } else {
        rows.cells.push_back(cellValue(column.kind, {column.buffer.get(), column.length}, characterSet));
    }
    return true;
}

bool Statement::readLongCell(SQLUSMALLINT number, const Column& column, QByteArray& bytes) {
    const SQLLEN terminator = column.cType == SQL_C_CHAR ? 1 : 0;
    bytes.resize(std::max<qsizetype>(column.length, kTextBuffer * 8) + terminator);
    qsizetype filled = 0;
    while (true) {
        const SQLLEN room = bytes.size() - filled;
        SQLLEN left = 0;
        const SQLRETURN result = SQLGetData(handle_.raw(), number, column.cType, bytes.data() + filled, room, &left);
        if (result == SQL_NO_DATA) break;
        if (!SQL_SUCCEEDED(result)) return false;
        if (left != SQL_NO_TOTAL && left <= room - terminator) {
            filled += left;
            break;
        }
        filled += room - terminator;
        bytes.resize(bytes.size() * 2);
    }
    bytes.truncate(filled);
    return true;
}

}  // namespace zelvor::odbc
