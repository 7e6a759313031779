#include "general_rules/general_cell.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kFolderMarker = u"[folder]"_s;
const QString kFileMarker = u"[file]"_s;

QString withoutMarkers(QString text) {
    return text.remove(kFolderMarker).remove(kFileMarker);
}

}  // namespace

bool GeneralCell::isWellFormed(QStringView text) {
    const qsizetype bar = text.indexOf(u'|');
    return bar < 0 || text.left(bar).contains(u':');
}

GeneralCell::Kind GeneralCell::kind() const {
    if (text_.contains(u'|')) return Kind::Choice;
    if (text_.contains(kFolderMarker)) return Kind::Folder;
    if (text_.contains(kFileMarker)) return Kind::File;
    return Kind::Plain;
}

QString GeneralCell::value() const {
    // Meant: the first ":" ends the value, so the value of a choice holds none ("16:9:..." is "16").
    return withoutMarkers(kind() == Kind::Choice ? text_.section(u':', 0, 0) : text_);
}

QStringList GeneralCell::choices() const {
    if (kind() != Kind::Choice) return {};
    const QString list = text_.contains(u':') ? text_.section(u':', 1) : text_;
    return list.split(u'|');
}

QString GeneralCell::withValue(const QString& value) const {
    switch (kind()) {
        case Kind::Plain:
            return value;
        case Kind::Choice:
            return value + u':' + choices().join(u'|');
        case Kind::Folder:
        case Kind::File:
            break;
    }
    const QString marker = kind() == Kind::Folder ? kFolderMarker : kFileMarker;
    const QString bare = withoutMarkers(value);
    return text_.startsWith(marker) ? marker + bare : bare + marker;
}

}  // namespace zelvor
