#include "remote/page_file.h"

#include <QFile>
#include <QRegularExpression>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr auto kPagePolicy =
    "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; connect-src 'self'; base-uri 'none'; "
    "form-action 'self'; frame-ancestors 'none'";

// A text as it stands within the quotes of a script.
QString quoted(QString text) {
    return text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
}

QByteArray translated(const QByteArray& file, bool isScript) {
    static const QRegularExpression kMarked(u"\\{\\{([^{}]+)\\}\\}"_s);
    const QString text = QString::fromUtf8(file);
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch& match : kMarked.globalMatch(text)) {
        const QString said = translate("page", match.captured(1).toUtf8().constData());
        result += QStringView(text).sliced(end, match.capturedStart() - end);
        result += isScript ? quoted(said) : said.toHtmlEscaped();
        end = match.capturedEnd();
    }
    return (result + QStringView(text).sliced(end)).toUtf8();
}

}  // namespace

HttpResponse pageFile(const QString& name) {
    QFile file(u":/control/"_s + name);
    if (name.contains(u'/') || !file.open(QIODevice::ReadOnly))
        return {404, "text/plain; charset=utf-8", "Not found\n"};
    const bool isScript = name.endsWith(u".js");
    const bool isPage = name.endsWith(u".html");
    const QByteArray type = isScript                  ? "text/javascript; charset=utf-8"
                            : name.endsWith(u".css")  ? "text/css; charset=utf-8"
                            : name.endsWith(u".json") ? "application/json"
                                                      : "text/html; charset=utf-8";
    const QByteArray bytes = file.readAll();
    return {200,
            type,
            isScript || isPage ? translated(bytes, isScript) : bytes,
            {{"Content-Security-Policy", kPagePolicy},
             {"Referrer-Policy", "no-referrer"},
             {"X-Content-Type-Options", "nosniff"}}};
}

}  // namespace zelvor
