#include <QXmlStreamReader>
#include <algorithm>

#include "base/run_time_error.h"
#include "engine/template_xml.h"
#include "support/fuzz_input.h"

using namespace zelvor;

namespace {

bool isPlain(const QString& text) {
    return std::ranges::all_of(text, [](QChar c) { return c.isLetterOrNumber() || c == u' ' || c == u'|'; });
}

}  // namespace

// Lines "key=value" as the fields of a template. Where key and value are plain words the XML is one, read as a server
// hands it on.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    VariableStore fields;
    bool plain = true;
    for (const QString& line : test::fuzzLines(data, size)) {
        const QString value = line.section(u'=', 1);
        fields.SetVar(QString(u"t-" + line.section(u'=', 0, 0)), value);
        plain = plain && isPlain(line.section(u'=', 0, 0).remove(u'*')) && isPlain(value);
    }
    for (const auto make : {makeXml, makeRemoteXml}) {
        try {
            QXmlStreamReader xml(make(fields).text.replace(QStringLiteral("\\\""), QStringLiteral("\"")));
            while (!xml.atEnd()) xml.readNext();
            test::require(!plain || !xml.hasError());
        } catch (const RunTimeError& error) {
            test::require(error.number() == static_cast<int>(ErrorNumber::SubscriptOutOfRange));
        }
    }
    return 0;
}
