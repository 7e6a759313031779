#include "engine/card_run.h"
#include "engine/template_xml.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

struct Field {
    QVarLengthArray<QChar, 64> key;
    QStringView value;  // of the arguments
};

// field;value or field;ani;value
Field parseField(QChar type, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const bool isAnimated = pieces.count() == 3;
    Field field{{type, u'-'}, pieces[isAnimated ? 2 : 1]};
    const auto append = [&field](QStringView text) { field.key.append(text.data(), text.size()); };
    append(isAnimated ? pieces[1] : QStringView(u"0"));
    append(u"*");
    append(pieces[0]);
    return field;
}

void setField(CardRun& run, const QString& note, const Field& field) {
    run.ports().notes.appendHistory({note, field.key, u" = "_s, field.value});
    run.state().templateData.setText(field.key, field.value);
}

void setRemoteField(CardRun& run, const Field& field) {
    run.state().remoteTemplateData.setText(field.key, field.value);
}

void SDATA(CardRun& run, const Arguments& args) {
    setField(run, u" > SDATA~"_s, parseField(u't', args));
}
void SIMAGE(CardRun& run, const Arguments& args) {
    setField(run, u" > SIMAGE~"_s, parseField(u'i', args));
}
void SDATAREMOTE(CardRun& run, const Arguments& args) {
    setRemoteField(run, parseField(u't', args));
}
void SIMAGEREMOTE(CardRun& run, const Arguments& args) {
    setRemoteField(run, parseField(u'i', args));
}

void CLEARDATA(CardRun& run, const Arguments&) {
    run.state().templateData.clear();
    run.ports().notes.clearHistory();
    run.ports().notes.appendHistory({u" > CLEAR-DATA"_s});
}

void CLEARDATAREMOTE(CardRun& run, const Arguments&) {
    run.state().remoteTemplateData.clear();
}

QString targetVariable(const Arguments& args, const QString& usual) {
    return args.given() && !args.text().isEmpty() ? u'@' + args.text() : usual;
}

void MAKEXML(CardRun& run, const Arguments& args) {
    const QString variable = targetVariable(args, u"@CASPARXML"_s);
    const TemplateXml xml = makeXml(run.state().templateData);
    run.variables().SetVar(variable, xml.text);
    run.noteTemplateFaults(xml.faults);
    run.ports().notes.appendHistory({u" > MAKEXML~"_s, variable});
    run.ports().notes.showLastTemplate(xml.text);
}

void MAKEXMLREMOTE(CardRun& run, const Arguments& args) {
    const TemplateXml xml = makeRemoteXml(run.state().remoteTemplateData);
    run.variables().SetVar(targetVariable(args, u"@CASPARXMLREMOTE"_s), xml.text);
    run.noteTemplateFaults(xml.faults);
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kTemplateCommands{
    Command{u"CLEARDATA", CLEARDATA, Argument::None, u"", u"empties the template data and the history list"},
    Command{u"CLEARDATAREMOTE", CLEARDATAREMOTE, Argument::None, u"", u"empties the remote template data"},
    Command{u"SDATA", SDATA, Argument::Expanded, u"field;[animation;]value", u"sets a text field of the template",
            roles(Role::Field)},
    Command{u"SDATAREMOTE", SDATAREMOTE, Argument::Expanded, u"field;[animation;]value",
            u"sets a text field of the remote template", roles(Role::RemoteField)},
    Command{u"SIMAGE", SIMAGE, Argument::Expanded, u"field;[animation;]value", u"sets an image field of the template",
            roles(Role::Field)},
    Command{u"SIMAGEREMOTE", SIMAGEREMOTE, Argument::Expanded, u"field;[animation;]value",
            u"sets an image field of the remote template", roles(Role::RemoteField)},
    Command{u"MAKEXML", MAKEXML, Argument::Expanded, u"[name]", u"@CASPARXML or @name becomes the template data as XML",
            roles(Role::VariableName)},
    Command{u"MAKEXMLREMOTE", MAKEXMLREMOTE, Argument::Expanded, u"[name]",
            u"@CASPARXMLREMOTE or @name becomes the remote template data as XML", roles(Role::VariableName)},
};

}  // namespace

std::span<const Command> templateData() {
    return kTemplateCommands;
}

}  // namespace zelvor::commands
