#include "engine/template_xml.h"

#include <algorithm>

#include "engine/arguments.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Views made by the compiler: one made of a literal on the way measures it each time.
constexpr QStringView kField = uR"(<componentData id=\")";
constexpr QStringView kType = uR"(\"><data type=\")";
constexpr QStringView kAnimation = uR"(\" ani=\")";
constexpr QStringView kNext = uR"(\" )";
constexpr QStringView kOpen = uR"(=\")";
constexpr QStringView kValue = uR"(\" value=\")";
constexpr QStringView kEnd = uR"(\"></data></componentData>)";
constexpr QStringView kText = u"txt";
constexpr QStringView kPicture = u"pic";
constexpr QStringView kQuote = uR"(\")";

struct FieldKey {
    QStringView ani;
    QStringView id;
};

class XmlWriter {
 public:
    explicit XmlWriter(QString& xml) : xml_(xml) { xml_ += u"<templateData>"; }
    ~XmlWriter() { xml_ += u"</templateData>"; }
    Q_DISABLE_COPY_MOVE(XmlWriter)

    // A letter other than "t" and "i" keeps the type of the field before.
    void setType(QStringView letter) {
        if (letter.size() != 1) return;
        if (letter[0] == u't') type_ = kText;
        if (letter[0] == u'i') type_ = kPicture;
    }

    void field(const FieldKey& key, QStringView value, bool verticalOffsetNeeded) {
        xml_ += kField;
        text(key.id);
        xml_ += kType;
        xml_ += type_;
        xml_ += kAnimation;
        text(key.ani);
        if (value.contains(u'|')) {
            const Pieces parts(value, u'|');
            attribute(u"sz", parts[1]);
            if (verticalOffsetNeeded || parts.count() >= 3) attribute(u"yy", parts[2]);
            lastAttribute(parts[0]);
        } else if (value.contains(u'#')) {
            const Pieces parts(value, u'#');
            attribute(parts[1], parts[2]);
            lastAttribute(parts[0]);
        } else {
            lastAttribute(value);
        }
    }

 private:
    // Ends the attribute before and leaves its own open.
    void attribute(QStringView name, QStringView value) {
        xml_ += kNext;
        text(name);
        xml_ += kOpen;
        text(value);
    }

    void lastAttribute(QStringView value) {
        xml_ += kValue;
        text(value);
        xml_ += kEnd;
    }

    void text(QStringView raw) {
        qsizetype start = 0;
        for (qsizetype at = 0; at < raw.size(); ++at) {
            if (raw[at] != u'\'') continue;
            xml_ += raw.mid(start, at - start);
            xml_ += kQuote;
            start = at + 1;
        }
        xml_ += raw.mid(start);
    }

    TextWriter xml_;
    QStringView type_;
};

// What a character that breaks the template data is called; empty for one that does not.
QStringView breakingName(QChar character) {
    switch (character.unicode()) {
        case u'\'':
        case u'"':
            return u"a quote";
        case u'<':
            return u"a \"<\"";
        case u'&':
            return u"an \"&\"";
        case u'\\':
            return u"a backslash";
        default:
            return {};
    }
}

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
        const auto* broken = std::ranges::find_if_not(text, &QStringView::isEmpty, breakingName);
        if (broken != text.end()) faults += key.section(u'*', 1) + u" holds "_s + breakingName(*broken);
    });
    return faults;
}

QString makeXml(const VariableStore& fields) {
    QString text;
    {
        XmlWriter xml(text);
        forEachField(fields, [&](const QString& key, const Value& value) {
            const Pieces parts(key, u'-');
            xml.setType(parts[0]);
            const Pieces animationAndId(parts[1], u'*');
            xml.field({animationAndId[0], animationAndId[1]}, value.text(), false);
        });
    }
    return text;
}

QString makeRemoteXml(const VariableStore& fields) {
    QString text;
    {
        XmlWriter xml(text);
        forEachField(fields, [&](const QString& key, const Value& value) {
            const QStringView characters(key);
            xml.setType(characters.left(1));
            xml.field({characters.mid(2, 1), characters.mid(4)}, value.text(), true);
        });
    }
    return text;
}

}  // namespace zelvor
