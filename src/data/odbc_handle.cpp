#include "data/odbc_handle.h"

#include <algorithm>
#include <array>

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor::odbc {

Handle::Handle(SQLSMALLINT type, SQLHANDLE parent) : type_(type) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(type, parent, &raw_))) {
        throw RunTimeError::withText(ErrorNumber::DatabaseError, u"The ODBC driver manager refused a handle."_s);
    }
}

Handle::~Handle() {
    if (raw_ == nullptr) return;
    if (type_ == SQL_HANDLE_DBC) SQLDisconnect(raw_);
    SQLFreeHandle(type_, raw_);
}

Diagnostics diagnostics(const Handle& handle) {
    Diagnostics found;
    std::array<SQLCHAR, SQL_SQLSTATE_SIZE + 1> state{};
    std::array<SQLCHAR, 2048> text{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    for (SQLSMALLINT record = 1; SQL_SUCCEEDED(SQLGetDiagRec(handle.type(), handle.raw(), record, state.data(), &native,
                                                             text.data(), text.size(), &length));
         ++record) {
        if (!found.text.isEmpty()) found.text += "\r\n";
        found.text.append(reinterpret_cast<const char*>(text.data()),
                          std::min<qsizetype>(length, static_cast<qsizetype>(text.size()) - 1));
        found.connectionLost = found.connectionLost || (state[0] == '0' && state[1] == '8');
    }
    return found;
}

QStringList installedDrivers() {
    const Handle environment(SQL_HANDLE_ENV, SQL_NULL_HANDLE);
    SQLSetEnvAttr(environment.raw(), SQL_ATTR_ODBC_VERSION, attributeValue(SQL_OV_ODBC3), 0);
    QStringList names;
    std::array<SQLCHAR, 256> name{};
    std::array<SQLCHAR, 4096> attributes{};
    SQLSMALLINT nameLength = 0;
    SQLSMALLINT length = 0;
    for (SQLUSMALLINT which = SQL_FETCH_FIRST;
         SQL_SUCCEEDED(SQLDrivers(environment.raw(), which, name.data(), name.size(), &nameLength, attributes.data(),
                                  attributes.size(), &length));
         which = SQL_FETCH_NEXT) {
        names += QString::fromUtf8(reinterpret_cast<const char*>(name.data()));
    }
    return names;
}

}  // namespace zelvor::odbc
