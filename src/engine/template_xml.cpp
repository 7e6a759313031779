#include "engine/template_xml.h"

#include <algorithm>

#include "engine/arguments.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Views made by the compiler: one made of a literal on the way measures it each time.
constexpr QStringView kField = uR"(<componentData id=\")";
constexpr QStringView kNoType = uR"(\"><data type=\"\" ani=\")";
constexpr QStringView kText = uR"(\"><data type=\"txt\" ani=\")";
constexpr QStringView kPicture = uR"(\"><data type=\"pic\" ani=\")";
constexpr QStringView kNext = uR"(\" )";
constexpr QStringView kOpen = uR"(=\")";
constexpr QStringView kValue = uR"(\" value=\")";
constexpr QStringView kEnd = uR"(\"></data></componentData>)";
constexpr QStringView kQuote = uR"(\")";

// Room for a field of the usual length, in UTF-16 units.
constexpr qsizetype kUsualField = 128;

// Whether the character breaks the XML, which escapes nothing.
constexpr bool breaks(QChar character) {
    return character == u'\'' || character == u'"' || character == u'<' || character == u'&' || character == u'\\';
}

QStringView breakingName(QChar character) {
    switch (character.unicode()) {
        case u'<':
            return u"a \"<\"";
        case u'&':
            return u"an \"&\"";
        case u'\\':
            return u"a backslash";
        default:
            return u"a quote";
    }
}

// Whether nothing in the value asks for more than being copied.
bool isPlain(QStringView value) {
    return std::none_of(value.begin(), value.end(), [](QChar c) { return c == u'|' || c == u'#' || breaks(c); });
}

struct FieldKey {
    QStringView letter;
    QStringView ani;
    QStringView id;
};

qsizetype find(QStringView text, QChar character) {
    return std::find(text.begin(), text.end(), character) - text.begin();
}

FieldKey splitKey(QStringView key) {
    const qsizetype dash = find(key, u'-');
    const QStringView behind = key.mid(dash + 1);
    const QStringView piece = behind.left(find(behind, u'-'));
    const qsizetype star = find(piece, u'*');
    if (dash == key.size() || star == piece.size()) throw MissingPiece();
    const QStringView id = piece.mid(star + 1);
    return {key.left(dash), piece.left(star), id.left(find(id, u'*'))};
}

FieldKey cutKey(QStringView key) {
    return {key.left(1), key.mid(2, 1), key.mid(4)};
}

class XmlWriter {
 public:
    XmlWriter(QString& xml, qsizetype fields) : xml_(xml, (fields + 1) * kUsualField) { xml_ += u"<templateData>"; }
    ~XmlWriter() { xml_ += u"</templateData>"; }
    Q_DISABLE_COPY_MOVE(XmlWriter)

    void plainField(const FieldKey& key, QStringView value) {
        begin(key);
        xml_ += kValue;
        xml_ += value;
        xml_ += kEnd;
    }

    void field(const FieldKey& key, QStringView value, bool verticalOffsetNeeded) {
        begin(key);
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
    void begin(const FieldKey& key) {
        // A letter other than "t" and "i" keeps the type of the field before.
        if (key.letter.size() == 1) {
            if (key.letter[0] == u't') type_ = kText;
            if (key.letter[0] == u'i') type_ = kPicture;
        }
        xml_ += kField;
        text(key.id);
        xml_ += type_;
        text(key.ani);
    }

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
    QStringView type_ = kNoType;
};

TemplateXml write(const VariableStore& fields, FieldKey (*read)(QStringView key), bool verticalOffsetNeeded) {
    QString xml;
    QStringList faults;
    {
        XmlWriter writer(xml, fields.size());
        fields.forEach([&](const QString& key, const Value& value) {
            const QString text = value.text();
            try {
                if (isPlain(text)) return writer.plainField(read(key), text);
                writer.field(read(key), text, verticalOffsetNeeded);
            } catch (const MissingPiece&) {
                throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u"field "_s + key + u" = "_s + text);
            }
            const auto* broken = std::ranges::find_if(text, breaks);
            if (broken != text.end()) faults += key.section(u'*', 1) + u" holds "_s + breakingName(*broken);
        });
    }
    return {xml, faults};
}

}  // namespace

TemplateXml makeXml(const VariableStore& fields) {
    return write(fields, splitKey, false);
}

TemplateXml makeRemoteXml(const VariableStore& fields) {
    return write(fields, cutKey, true);
}

}  // namespace zelvor
