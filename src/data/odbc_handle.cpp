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

}  // namespace zelvor::odbc
