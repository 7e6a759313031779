#include "feed/game_feed.h"
#include "form/controls.h"
#include "support/fake_ports.h"
#include "support/fuzz_input.h"

using namespace zelvor;

// Two datagrams, a line each, with the third as the threshold of extra time: nobody is told, and a refused one leaves
// the clock as it was.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static auto* const bench = new test::EngineBench;
    static auto* const cards = new UnattendedCards(bench->engine);
    static GameFeed feed(bench->engine, *cards);
    const QList<QByteArray> lines = test::fuzzBytes(data, size).split('\n');
    bench->form.at(controls.chkEAFTER).setChecked(lines.size() > 2);
    bench->form.at(controls.txtEAFTER).setText(QString::fromLatin1(lines.value(2)));
    for (const QByteArray& line : lines.first(std::min<qsizetype>(2, lines.size()))) {
        const QString before = bench->form.at(controls.lblTime).text();
        const bool refused = feed.handle(QString::fromLatin1(line)) == GameFeed::Outcome::Refused;
        test::require(!refused || bench->form.at(controls.lblTime).text() == before);
    }
    test::require(bench->operatorDesk.shown.isEmpty());
    return 0;
}
