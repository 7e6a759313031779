#pragma once

#include <sql.h>
#include <sqlext.h>

#include <QByteArray>
#include <QStringList>
#include <utility>

namespace zelvor::odbc {

// Owns one handle of the driver manager; move-only. A connection handle is disconnected before it is freed.
class Handle {
 public:
    Handle() = default;
    // type: SQL_HANDLE_ENV, _DBC or _STMT, made below `parent`. Throws RunTimeError when the manager refuses.
    Handle(SQLSMALLINT type, SQLHANDLE parent);
    Handle(Handle&& other) noexcept : type_(other.type_), raw_(std::exchange(other.raw_, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(type_, other.type_);
        std::swap(raw_, other.raw_);
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle();

    [[nodiscard]] SQLHANDLE raw() const { return raw_; }
    [[nodiscard]] SQLSMALLINT type() const { return type_; }

 private:
    SQLSMALLINT type_ = 0;
    SQLHANDLE raw_ = nullptr;
};

// The names of the drivers that the manager knows here.
QStringList installedDrivers();

// A number as the attribute calls of the C interface take it.
inline SQLPOINTER attributeValue(quintptr value) {
    return reinterpret_cast<SQLPOINTER>(value);  // NOLINT(performance-no-int-to-ptr)
}

// What the driver said about the last call on a handle: its texts in its own bytes, joined by line ends.
struct Diagnostics {
    QByteArray text;
    // SQLSTATE class 08: the link to the server is gone.
    bool connectionLost = false;
};
Diagnostics diagnostics(const Handle& handle);

}  // namespace zelvor::odbc
