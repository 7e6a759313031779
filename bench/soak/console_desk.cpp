#include "soak_desk/console_desk.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kReactionTime = 10;  // milliseconds until the operator answers
constexpr int kCancelled = 9;      // one in so many pick lists

void sendMouse(QWidget& widget, QEvent::Type type, Qt::MouseButton button) {
    const QPointF middle = widget.rect().center();
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, middle, widget.mapToGlobal(middle), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

// What the key has fired may have ended the widget before the key is let go.
void sendKey(QWidget& widget, Qt::Key key) {
    const QPointer<QWidget> held = &widget;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        if (held) QApplication::sendEvent(held, &event);
    }
}

// The offscreen platform has no window manager, and says so of every window.
void dropSizeHints(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.contains(u"propagateSizeHints")) std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

ConsoleDesk::ConsoleDesk(const DemoDatabase& database) {
    qInstallMessageHandler(dropSizeHints);
    const QString demo = QStringLiteral(DEMO_FOLDER);
    for (QDirIterator files(demo + u"/MODULES"_s, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString from = files.next();
        const QString to = folder_.filePath(QDir(demo).relativeFilePath(from));
        if (!QDir().mkpath(QFileInfo(to).path()) || !QFile::copy(from, to)) qFatal("cannot copy the demo");
    }
    for (const QString& pack : {u"EN"_s, u"GR"_s})
        write(u"MODULES/QRD_%1/CONNECTIONS.TXT"_s.arg(pack), "1==Demo==" + database.connectionString() + "\r\n");
    connect(&picker_, &QTimer::timeout, this, &ConsoleDesk::answerPickList);
    picker_.setInterval(kReactionTime);
}

QByteArray ConsoleDesk::read(const QString& name) const {
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ConsoleDesk::write(const QString& name, const QByteArray& bytes) const {
    QFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(name));
}

void ConsoleDesk::start() {
    app_ =
        std::make_unique<CardsApp>(CardsApp::Options{folder_.path(), {}, folder_.filePath(u"errors.log"_s), u"1"_s, 0});
    connect(&app_->boxes(), &Boxes::opened, this, [this](QDialog* box) { answerBox(*box); });
    app_->start();
}

void ConsoleDesk::connectMain(quint16 port) {
    at("txtGASPARPORT").setText(QString::number(port));
    click("cmdGASPARCONNECT");
    const QDeadlineTimer deadline(5000);
    while (app_->links().state(LinkId::Main) != Graphics::kConnected && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, kReactionTime);
}

QWidget& ConsoleDesk::widget(const char* name, int index) const {
    for (QWidget* each : app_->window().findChildren<QWidget*>(QString::fromLatin1(name)))
        if (each->property("index").toInt() == index) return *each;
    qFatal("no control %s %d", name, index);
}

void ConsoleDesk::click(const char* name, int index, Qt::MouseButton button) const {
    QWidget& target = widget(name, index);
    sendMouse(target, QEvent::MouseButtonPress, button);
    sendMouse(target, QEvent::MouseButtonRelease, button);
}

void ConsoleDesk::check(const char* name, bool checked) const {
    auto& box = dynamic_cast<QAbstractButton&>(widget(name, -1));
    if (box.isChecked() != checked) box.click();
}

void ConsoleDesk::press(Qt::Key key) const {
    // Keys go to what is on the screen: a list that has just closed still has the focus.
    QWidget* focus = QApplication::focusWidget();
    sendKey(focus != nullptr && focus->isVisible() ? *focus : app_->window(), key);
}

void ConsoleDesk::choose(const char* menuItem) const {
    app_->window().findChild<QAction*>(QString::fromLatin1(menuItem))->trigger();
}

bool ConsoleDesk::atAQuestion() {
    return QApplication::activeModalWidget() != nullptr;
}

QStringList ConsoleDesk::openDialogs() {
    QStringList titles;
    for (const QWidget* each : QApplication::topLevelWidgets())
        if (qobject_cast<const QDialog*>(each) != nullptr && each->isVisible()) titles += each->windowTitle();
    return titles;
}

void ConsoleDesk::answerBox(QDialog& box) {
    const auto* text = box.findChild<QWidget*>(u"text"_s);
    boxes += box.windowTitle() + u'|' + text->property("text").toString() + text->property("plainText").toString();
    QTimer::singleShot(kReactionTime, &box, [&box] {
        if (auto* field = box.findChild<QLineEdit*>(u"answer"_s)) field->setText(u"1"_s);
        box.accept();
    });
}

void ConsoleDesk::answerPickList() {
    auto* form = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (form == nullptr || form->objectName() != u"frmASK") return;
    auto& list = *form->findChild<QListWidget*>(u"lstASK"_s);
    ++picked_;
    if (list.count() == 0 || picked_ % kCancelled == 0) return form->reject();
    list.setCurrentRow(picked_ % list.count());
    sendKey(list, Qt::Key_Return);
}

long residentKilobytes() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) return 0;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmRSS:") + 6).simplified().split(' ').first().toLong();
}

std::size_t openHandles() {
    return static_cast<std::size_t>(QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size());
}

}  // namespace zelvor
