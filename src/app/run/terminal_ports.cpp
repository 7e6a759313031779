#include "app_run/terminal_ports.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString colourText(std::optional<Colour> colour) {
    return colour ? u"&H"_s + QString::number(*colour, 16).rightJustified(6, u'0').toUpper() : u"none"_s;
}

QString yesOrNo(bool value) {
    return value ? u"True"_s : u"False"_s;
}

struct ShownProperty {
    QString name;
    QString value;
};

ShownProperty shownProperty(const Control& control, Control::Property property) {
    using Property = Control::Property;
    const bool hasText = control.kind() == Control::Kind::TextBox || control.kind() == Control::Kind::List;
    switch (property) {
        case Property::Text:
            return {hasText ? u"Text"_s : u"Caption"_s, inOneLine(control.text())};
        case Property::Tag:
            return {u"Tag"_s, inOneLine(control.tag())};
        case Property::BackColour:
            return {u"BackColor"_s, colourText(control.backColour())};
        case Property::ForeColour:
            return {u"ForeColor"_s, colourText(control.foreColour())};
        case Property::Visible:
            return {u"Visible"_s, yesOrNo(control.visible())};
        case Property::Enabled:
            return {u"Enabled"_s, yesOrNo(control.enabled())};
        case Property::Checked:
            return {u"Checked"_s, yesOrNo(control.checked())};
        case Property::State:
            return {u"State"_s, control.state()};
        case Property::Role:
            return {u"Role"_s, roleText(control.role())};
        case Property::Items:
            return {u"ListCount"_s, QString::number(control.items().size())};
    }
    Q_UNREACHABLE();
}

}  // namespace

void TerminalOperator::message(const Asker&, const QString& title, const QString& text, Severity) {
    print(title, text, {});
}

bool TerminalOperator::yesNo(const Asker&, const QString& title, const QString& text) {
    print(title, text, yes_ ? u"Yes"_s : u"No"_s);
    return yes_;
}

std::optional<QString> TerminalOperator::input(const Asker&, const QString& title, const QString& prompt,
                                               const QString& proposed) {
    print(title, prompt, proposed);
    return proposed;
}

void TerminalOperator::print(const QString& title, const QString& text, const QString& answer) {
    err_ << '[' << (title.isEmpty() ? u"Zelvor Cards"_s : title) << "] " << text;
    if (!answer.isEmpty()) err_ << " [" << answer << ']';
    err_ << '\n';
    err_.flush();
}

void TerminalDesktop::open(const QString& target) {
    out_ << "console > EXECUTE " << inOneLine(target) << '\n';
    out_.flush();
}

void TerminalDesktop::loadForm(const Asker&, const QString& name) {
    out_ << "console > LOADFORM " << name << '\n';
    out_.flush();
}

void printSentLine(QTextStream& out, LinkId link, const QString& command) {
    out << (link == LinkId::Main ? "main > " : "remote > ") << command << '\n';
    out.flush();
}

void printFormChange(QTextStream& out, const Control& control, Control::Property property) {
    const ShownProperty shown = shownProperty(control, property);
    out << "console > " << control.displayName() << '.' << shown.name << " = " << shown.value << '\n';
    out.flush();
}

QString inOneLine(QString text) {
    return text.replace(u'\r', u"\\r"_s).replace(u'\n', u"\\n"_s);
}

}  // namespace zelvor
