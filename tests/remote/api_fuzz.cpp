#include <QCoreApplication>

#include "remote/api_routes.h"
#include "support/fake_ports.h"

namespace {

// A console behind its ways in, on which nothing waits.
struct Bench {
    int argc = 1;
    char name[5] = "fuzz";
    char* argv = name;
    QCoreApplication application{argc, &argv};
    zelvor::test::EngineBench bench;
    zelvor::CardConsole cards{bench.engine};
    zelvor::GameDesk desk{bench.engine};
    zelvor::RemoteConsole console{bench.engine, cards, desk};
    zelvor::StateView view{console};
};

}  // namespace

// The first line is the path, the rest the body: the call is answered in the end, once.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static auto* const bench = new Bench;
    bench->console.open();
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const qsizetype line = bytes.indexOf('\n');
    zelvor::HttpRequest request;
    if (!zelvor::readTarget('/' + bytes.left(line), request.path) || line < 0) return 0;
    request.body = bytes.mid(line + 1);
    for (const zelvor::ApiRoute& route : zelvor::apiRoutes()) {
        request.method = route.method.toByteArray();
        int answered = 0;
        zelvor::answerApi(bench->console, bench->view, request, [&](const zelvor::HttpResponse&) { ++answered; });
        QCoreApplication::processEvents();
        if (answered != 1) __builtin_trap();
    }
    return 0;
}
