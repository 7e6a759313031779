#include <QCoreApplication>

#include "general_rules/selections.h"
#include "support/fake_ports.h"
#include "support/fuzz_input.h"

using namespace zelvor;

namespace {

const QString kFile = QStringLiteral("SELECTIONS.TXT");

struct Desk : test::EngineBench {
    Selections selections{engine};
};

}  // namespace

// Any file is read, with one error at most; what is saved then is read without one, and saved as the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static int argc = 0;
    static const QCoreApplication application(argc, nullptr);
    Desk desk;
    desk.write(kFile, test::fuzzBytes(data, size));
    desk.selections.LoadSelections();
    test::require(desk.operatorDesk.shown.size() <= 1);
    desk.operatorDesk.shown.clear();
    desk.selections.SaveSelections();
    const auto saved = [&desk] {
        return readWholeFile(desk.folderOnDisk.filePath(QStringLiteral("MODULES/") + kFile));
    };
    const QByteArray first = saved();
    desk.selections.LoadSelections();
    desk.selections.SaveSelections();
    test::require(desk.operatorDesk.shown.isEmpty() && saved() == first);
    return 0;
}
