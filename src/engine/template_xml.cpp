#include "engine/template_xml.h"

#include <algorithm>
#include <array>

#include "engine/arguments.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

struct FieldKey {
    QStringView ani;
    QStringView id;
};

class XmlWriter {
 public:
    XmlWriter() { xml_.reserve(4096); }

    // A letter other than "t" and "i" keeps the type of the field before.
    void setType(QStringView letter) {
        if (letter == u"t") type_ = u"txt";
        if (letter == u"i") type_ = u"pic";
    }

    void field(const FieldKey& key, QStringView value, bool verticalOffsetNeeded) {
        xml_ += uR"(<componentData id=\")"_s;
        text(key.id);
        xml_ += uR"(\"><data type=\")"_s;
        xml_ += type_;
        xml_ += uR"(\")"_s;
        attribute(u"ani", key.ani);
        if (value.contains(u'|')) {
            const Pieces parts(value, u'|');
            attribute(u"sz", parts[1]);
            if (verticalOffsetNeeded || parts.count() >= 3) attribute(u"yy", parts[2]);
            attribute(u"value", parts[0]);
        } else if (value.contains(u'#')) {
            const Pieces parts(value, u'#');
            attribute(parts[1], parts[2]);
            attribute(u"value", parts[0]);
        } else {
            attribute(u"value", value);
        }
        xml_ += u"></data></componentData>"_s;
    }

    QString finish() && {
        xml_ += u"</templateData>"_s;
        return std::move(xml_);
    }

 private:
    void attribute(QStringView name, QStringView value) {
        xml_ += u' ';
        text(name);
        xml_ += uR"(=\")"_s;
        text(value);
        xml_ += uR"(\")"_s;
    }

    void text(QStringView raw) {
        qsizetype start = 0;
        for (qsizetype at = raw.indexOf(u'\''); at >= 0; at = raw.indexOf(u'\'', start)) {
            xml_ += raw.mid(start, at - start);
            xml_ += uR"(\")"_s;
            start = at + 1;
        }
        xml_ += raw.mid(start);
    }

    QString xml_ = u"<templateData>"_s;
    QStringView type_;
};

struct BreakingCharacter {
    QChar character;
    QStringView name;
};

constexpr std::array kBreaking{
    BreakingCharacter{u'\'', u"a quote"}, BreakingCharacter{u'"', u"a quote"},      BreakingCharacter{u'<', u"a \"<\""},
    BreakingCharacter{u'&', u"an \"&\""}, BreakingCharacter{u'\\', u"a backslash"},
};

// A field that has not all its parts is named in the error.
template <class Action>
void forEachField(const VariableStore& fields, Action&& action) {
    fields.forEach([&](const QString& key, const Value& value) {
        try {
            action(key, value);
        } catch (const MissingPiece&) {
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u"field "_s + key + u" = "_s + value.text());
        }
    });
}

}  // namespace

QStringList templateFaults(const VariableStore& fields) {
    QStringList faults;
    fields.forEach([&](const QString& key, const Value& value) {
        const QString text = value.text();
        const auto* broken = std::ranges::find_if(
            kBreaking, [&](const BreakingCharacter& breaking) { return text.contains(breaking.character); });
        if (broken != kBreaking.end()) faults += key.section(u'*', 1) + u" holds "_s + broken->name;
    });
    return faults;
}

QString makeXml(const VariableStore& fields) {
    XmlWriter xml;
    forEachField(fields, [&](const QString& key, const Value& value) {
        const Pieces parts(key, u'-');
        xml.setType(parts[0]);
        const Pieces animationAndId(parts[1], u'*');
        xml.field({animationAndId[0], animationAndId[1]}, value.text(), false);
    });
    return std::move(xml).finish();
}

QString makeRemoteXml(const VariableStore& fields) {
    XmlWriter xml;
    forEachField(fields, [&](const QString& key, const Value& value) {
        const QStringView characters(key);
        xml.setType(characters.left(1));
        xml.field({characters.mid(2, 1), characters.mid(4)}, value.text(), true);
    });
    return std::move(xml).finish();
}

}  // namespace zelvor
