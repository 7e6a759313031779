#include "app_language_server/command_page.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// The lines below a command's heading, up to the next heading.
QString entryOf(const QString& word) {
    static const QString kPage = [] {
        QFile file(u":/commands.md"_s);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }();
    static const QRegularExpression kHeading(u"\n##"_s);
    const QString heading = u"\n### "_s + word + u'\n';
    const qsizetype at = kPage.indexOf(heading);
    if (word.isEmpty() || at < 0) return {};
    const qsizetype from = at + heading.size();
    const qsizetype to = kPage.indexOf(kHeading, from);
    return kPage.mid(from, to < 0 ? -1 : to - from).trimmed();
}

}  // namespace

QString commandPage(const QString& word) {
    static const QRegularExpression kElsewhere(u"Example: under \\[(.+)\\]\\(.*\\)\\."_s);
    QString entry = entryOf(word);
    const QRegularExpressionMatch elsewhere = kElsewhere.match(entry);
    if (!elsewhere.hasMatch()) return entry;
    const QString other = entryOf(elsewhere.captured(1));
    return entry.left(elsewhere.capturedStart()) + other.mid(other.indexOf(u"```"_s));
}

}  // namespace zelvor
