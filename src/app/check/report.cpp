#include "app_check/report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString severity(const Finding& finding) {
    return finding.isError ? u"error"_s : u"warning"_s;
}

// A terminal would obey control characters that a script or a file's name holds.
QString visible(const QString& text) {
    QString shown;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control) {
            shown += u"\\x%1"_s.arg(character.unicode(), 2, 16, QChar(u'0'));
        } else {
            shown += character;
        }
    }
    return shown;
}

void printText(const std::vector<Finding>& findings, int errors, QTextStream& out) {
    for (const Finding& finding : findings) {
        out << visible(finding.place.file) << ':' << finding.place.line << ": " << severity(finding) << ": "
            << visible(finding.text) << '\n';
    }
    const int warnings = static_cast<int>(findings.size()) - errors;
    out << errors << (errors == 1 ? " error, " : " errors, ") << warnings
        << (warnings == 1 ? " warning\n" : " warnings\n");
}

QJsonObject jsonReport(const std::vector<Finding>& findings, int errors) {
    QJsonArray list;
    for (const Finding& finding : findings) {
        list += QJsonObject{{u"file"_s, finding.place.file},
                            {u"line"_s, finding.place.line},
                            {u"severity"_s, severity(finding)},
                            {u"text"_s, finding.text}};
    }
    return {{u"findings"_s, list}, {u"errors"_s, errors}, {u"warnings"_s, list.size() - errors}};
}

QJsonObject sarifResult(const Finding& finding) {
    const QString uri = QString::fromLatin1(QUrl::toPercentEncoding(finding.place.file, "/"));
    const QJsonObject location{{u"artifactLocation"_s, QJsonObject{{u"uri"_s, uri}}},
                               {u"region"_s, QJsonObject{{u"startLine"_s, std::max(1, finding.place.line)}}}};
    return {{u"level"_s, severity(finding)},
            {u"message"_s, QJsonObject{{u"text"_s, finding.text}}},
            {u"locations"_s, QJsonArray{QJsonObject{{u"physicalLocation"_s, location}}}}};
}

QJsonObject sarifReport(const std::vector<Finding>& findings) {
    QJsonArray results;
    for (const Finding& finding : findings) results += sarifResult(finding);
    const QJsonObject driver{{u"name"_s, u"zelvor check"_s}, {u"version"_s, QStringLiteral(ZELVOR_VERSION)}};
    const QJsonObject run{{u"tool"_s, QJsonObject{{u"driver"_s, driver}}}, {u"results"_s, results}};
    return {{u"$schema"_s, u"https://json.schemastore.org/sarif-2.1.0.json"_s},
            {u"version"_s, u"2.1.0"_s},
            {u"runs"_s, QJsonArray{run}}};
}

}  // namespace

std::optional<ReportFormat> reportFormat(const QString& name) {
    if (name == u"text") return ReportFormat::Text;
    if (name == u"json") return ReportFormat::Json;
    if (name == u"sarif") return ReportFormat::Sarif;
    return std::nullopt;
}

int printReport(Findings& findings, ReportFormat format, QTextStream& out) {
    const std::vector<Finding>& all = findings.sorted();
    const auto errors = static_cast<int>(std::ranges::count_if(all, &Finding::isError));
    if (format == ReportFormat::Text) {
        printText(all, errors, out);
    } else {
        out << QJsonDocument(format == ReportFormat::Json ? jsonReport(all, errors) : sarifReport(all)).toJson();
    }
    return errors;
}

}  // namespace zelvor
