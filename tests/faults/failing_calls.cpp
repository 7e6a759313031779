#include "failing_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sql.h>
#include <sqlext.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

namespace {

std::atomic<int> callsLeft = 0;  // until the one that fails
std::atomic<const char*> failed = nullptr;

bool fails(const char* name) {
    if (callsLeft <= 0 || --callsLeft > 0) return false;
    failed = name;
    return true;
}

bool isFile(int descriptor) {
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

template <class Function>
Function next(Function, const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

namespace zelvor::test {

void failCall(int number) {
    failed = nullptr;
    callsLeft = number;
}

std::string endOfFailing() {
    callsLeft = 0;
    const char* name = failed;
    return name == nullptr ? "" : name;
}

}  // namespace zelvor::test

// Each stands before the library's of the same name, for the program and for the libraries that it loads.
#define FAILING(RESULT, NAME, PARAMETERS, ARGUMENTS, COUNTS, ERROR, FAILURE) \
    extern "C" RESULT NAME PARAMETERS {                                      \
        static const auto real = next(&NAME, #NAME);                         \
        if (!(COUNTS) || !fails(#NAME)) return real ARGUMENTS;               \
        errno = ERROR;                                                       \
        return FAILURE;                                                      \
    }
#define FAILING_ODBC(NAME, PARAMETERS, ARGUMENTS) FAILING(SQLRETURN, NAME, PARAMETERS, ARGUMENTS, true, 0, SQL_ERROR)

FAILING(ssize_t, write, (int file, const void* bytes, size_t size), (file, bytes, size), isFile(file), ENOSPC, -1)
FAILING(ssize_t, pwrite64, (int file, const void* bytes, size_t size, off64_t at), (file, bytes, size, at),
        isFile(file), ENOSPC, -1)
FAILING(int, fsync, (int file), (file), isFile(file), EIO, -1)
FAILING(int, fdatasync, (int file), (file), isFile(file), EIO, -1)
FAILING(int, ftruncate64, (int file, off64_t size) noexcept, (file, size), isFile(file), EIO, -1)
FAILING(int, rename, (const char* from, const char* to) noexcept, (from, to), true, EIO, -1)
FAILING(int, socket, (int domain, int type, int protocol) noexcept, (domain, type, protocol), domain != AF_UNIX, EMFILE,
        -1)
FAILING_ODBC(SQLAllocHandle, (SQLSMALLINT type, SQLHANDLE parent, SQLHANDLE* made), (type, parent, made))
FAILING_ODBC(SQLSetEnvAttr, (SQLHENV handle, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER length),
             (handle, attribute, value, length))
FAILING_ODBC(SQLSetConnectAttr, (SQLHDBC handle, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER length),
             (handle, attribute, value, length))
FAILING_ODBC(SQLDriverConnect,
             (SQLHDBC handle, SQLHWND window, SQLCHAR* in, SQLSMALLINT inSize, SQLCHAR* out, SQLSMALLINT outSize,
              SQLSMALLINT* outLength, SQLUSMALLINT completion),
             (handle, window, in, inSize, out, outSize, outLength, completion))
FAILING_ODBC(SQLExecDirect, (SQLHSTMT handle, SQLCHAR* text, SQLINTEGER length), (handle, text, length))
FAILING_ODBC(SQLNumResultCols, (SQLHSTMT handle, SQLSMALLINT* count), (handle, count))
FAILING_ODBC(SQLDescribeCol,
             (SQLHSTMT handle, SQLUSMALLINT number, SQLCHAR* name, SQLSMALLINT room, SQLSMALLINT* length,
              SQLSMALLINT* type, SQLULEN* size, SQLSMALLINT* decimals, SQLSMALLINT* nullable),
             (handle, number, name, room, length, type, size, decimals, nullable))
FAILING_ODBC(SQLBindCol,
             (SQLHSTMT handle, SQLUSMALLINT number, SQLSMALLINT type, SQLPOINTER to, SQLLEN room, SQLLEN* length),
             (handle, number, type, to, room, length))
FAILING_ODBC(SQLFetch, (SQLHSTMT handle), (handle))
