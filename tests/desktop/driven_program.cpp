#include "driven_program.h"

#include "desktop/form_view.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMenuBar>
#include <QTabBar>
#include <QToolButton>
#include <QWindow>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tav {
namespace {

namespace fs = std::filesystem;

QString Plain(QString text) { return text.remove(QLatin1Char('&')); }

constexpr int kButtonDown = 150;  // milliseconds

// Where a person aims: at the text of a button, not at the empty end of its line.
QPoint MarkOf(const QWidget& widget) {
    const bool marked = widget.inherits("QRadioButton") || widget.inherits("QCheckBox");
    return marked ? QPoint(8, widget.height() / 2) : widget.rect().center();
}

// A window manager gives the keyboard back to the window under one that closes; here there is none.
void GiveKeyboardBack() {
    const QWindow* const window = QGuiApplication::focusWindow();
    if (window != nullptr && window->isVisible()) return;
    QWidget* const modal = QApplication::activeModalWidget();
    const Form* const active = TheForms().Active();
    FormView* const view = active == nullptr ? nullptr : TheDesktop().ViewOf(*active);
    QWidget* const front = modal != nullptr || view == nullptr ? modal : view->Window();
    if (front != nullptr && front->isVisible()) front->activateWindow();
    QCoreApplication::processEvents();
}

QWindow& WindowWithKeyboard() {
    QWindow* const window = QGuiApplication::focusWindow();
    if (window == nullptr) throw std::runtime_error("no window has the keyboard");
    return *window;
}

QAction* Named(const QList<QAction*>& actions, const std::string& text) {
    for (QAction* const action : actions) {
        if (Plain(action->text()).toStdString() == text) return action;
    }
    return nullptr;
}

}  // namespace

DrivenProgram::DrivenProgram() {
    fs::copy_file(FEED_LIBRARY, InFolder("TAV Dairy Cattle Program - Feed Library.mdb"));
    fs::copy_file(HELP_FILE, InFolder("TAV Dairy Cattle Program Help.HLP"));
    TheDesktop().Platform().SetProgramFolder(folder_.Path("."));
    fs::current_path(folder_.Path("."));
}

DrivenProgram::~DrivenProgram() {
    End();
    EXPECT_TRUE(Asked.IsDone()) << "an answer that nobody asked for";
    for (const Said& said : Messages())
        ADD_FAILURE_AT(__FILE__, __LINE__) << "a message nobody looked at: " << said.Text;
    fs::current_path("/");
}

// The exit that the end of the program has asked for is used up in an event loop of its own, so
// that the dialogs of the next run find theirs open.
void DrivenProgram::End() {
    TheDesktop().Perform([] { TheProgram().Ended = true; });
    Settle();
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QApplication::exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void DrivenProgram::UseSettings(const std::string& name) {
    fs::copy_file(fs::path(SETTINGS) / name,
                  InFolder("TAV Dairy Cattle Program Settings Data File"),
                  fs::copy_options::overwrite_existing);
}

void DrivenProgram::UseSimulation(const std::string& name) {
    fs::copy_file(SamplePath(name), InFolder("TAV Dairy Cattle Default Simulation Data File.tav"),
                  fs::copy_options::overwrite_existing);
}

std::string DrivenProgram::SamplePath(const std::string& name) const {
    return (fs::path(SIMULATIONS) / (name + ".tav")).string();
}

std::string DrivenProgram::Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void DrivenProgram::Begin() {
    TheDesktop().Start();
    Settle();
}

void DrivenProgram::AcceptTerms() {
    Click("frmSplash.cmdAcceptTerms");
    Settle();
}

void DrivenProgram::OpenCow(const std::string& screen) {
    UseSettings("last on ration");
    UseSimulation("Lactating Cow");
    Begin();
    AcceptTerms();
    if (screen != "Ration") ClickToolbar(screen);
}

Control& DrivenProgram::ControlOf(const std::string& fullName) const {
    for (Form* const form : TheForms().Loaded()) {
        for (Control* const control : form->Controls()) {
            if (control->FullName() == fullName) return *control;
        }
    }
    throw std::runtime_error("no control " + fullName);
}

FormView& DrivenProgram::ViewOf(const std::string& name) const {
    const Form* const form = TheForms().Find(name);
    FormView* const view = form == nullptr ? nullptr : TheDesktop().ViewOf(*form);
    if (view == nullptr) throw std::runtime_error("no form on show: " + name);
    return *view;
}

QWidget& DrivenProgram::WidgetOf(const std::string& fullName) const {
    const FormView& view = ViewOf(fullName.substr(0, fullName.find('.')));
    auto* const widget = view.Surface().findChild<QWidget*>(QString::fromStdString(fullName));
    if (widget == nullptr) throw std::runtime_error("no widget " + fullName);
    return *widget;
}

QMainWindow& DrivenProgram::MainWindow() const {
    return dynamic_cast<QMainWindow&>(*ViewOf("frmParent").Window());
}

void DrivenProgram::Click(QWidget& widget, QPoint at, Qt::MouseButton button) const {
    const QPoint place = widget.mapTo(widget.window(), at.isNull() ? MarkOf(widget) : at);
    const QWidget* const seen = widget.window()->childAt(place);
    EXPECT_TRUE(&widget == widget.window() ||
                (seen != nullptr && (seen == &widget || widget.isAncestorOf(seen))))
        << widget.objectName().toStdString() << " is covered by "
        << (seen == nullptr ? "nothing" : seen->objectName().toStdString());
    QTest::mouseClick(widget.window()->windowHandle(), button, {}, place);
    Settle();
}

void DrivenProgram::ClickToolbar(const std::string& caption) const {
    for (QToolButton* const button : MainWindow().findChildren<QToolButton*>()) {
        if (button->text().toStdString() != caption || !button->isVisible()) continue;
        Click(*button);
        return;
    }
    FAIL() << "no button " << caption;
}

void DrivenProgram::ClickTab(const std::string& tabs, int page) const {
    auto* const bar = WidgetOf(tabs).findChild<QTabBar*>();
    ASSERT_NE(bar, nullptr);
    Click(*bar, bar->tabRect(page).center());
}

QAction& DrivenProgram::ActionOf(const std::string& menu, const std::string& entry) const {
    QAction* const head = Named(MainWindow().menuBar()->actions(), menu);
    if (head == nullptr) throw std::runtime_error("no menu " + menu);
    QAction* const action = Named(head->menu()->actions(), entry);
    if (action == nullptr) throw std::runtime_error("no entry " + entry);
    return *action;
}

void DrivenProgram::ClickMenu(const std::string& menu, const std::string& entry) const {
    QMenuBar& bar = *MainWindow().menuBar();
    QAction* const head = Named(bar.actions(), menu);
    ASSERT_NE(head, nullptr) << menu;
    QAction& action = ActionOf(menu, entry);
    Click(bar, bar.actionGeometry(head).center());
    ASSERT_TRUE(head->menu()->isVisible()) << menu;
    QTest::mouseClick(head->menu(), Qt::LeftButton, {},
                      head->menu()->actionGeometry(&action).center());
    Settle();
}

void DrivenProgram::Key(int key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(&WindowWithKeyboard(), static_cast<Qt::Key>(key), modifiers);
    // A button that is pressed by its access key stays down for a moment, so that it is seen.
    if (modifiers.testFlag(Qt::AltModifier)) QTest::qWait(kButtonDown);
    Settle();
}

void DrivenProgram::Type(const std::string& text) const {
    for (const char letter : text)
        QTest::keyClick(&WindowWithKeyboard(), letter);
    Settle();
}

void DrivenProgram::Enter(const std::string& name, const std::string& text) const {
    Click(name);
    Type(text);
    Key(Qt::Key_Tab);
}

void DrivenProgram::Choose(const std::string& name, const std::string& entry) const {
    auto& box = Widget<QComboBox>(name);
    const int wanted = box.findText(QString::fromStdString(entry));
    ASSERT_GE(wanted, 0) << entry;
    box.setFocus(Qt::TabFocusReason);
    Settle();
    Key(Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr) << name;
    Key(Qt::Key_Home);
    for (int i = 0; i < wanted; ++i)
        Key(Qt::Key_Down);
    Key(Qt::Key_Return);
}

void DrivenProgram::Mark(const std::string& name, const std::string& entry) const {
    auto& list = Widget<QListWidget>(name);
    const QList<QListWidgetItem*> found =
        list.findItems(QString::fromStdString(entry), Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << entry;
    list.scrollToItem(found.front());
    Click(*list.viewport(), list.visualItemRect(found.front()).center());
}

void DrivenProgram::Settle() {
    // Twice: what is put off to the event loop may itself put something off.
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    GiveKeyboardBack();
}

std::string DrivenProgram::Keyboard() const {
    const QWidget* const focus = QApplication::focusWidget();
    for (Form* const form : TheForms().Loaded()) {
        const FormView* const view = TheDesktop().ViewOf(*form);
        const Control* const control = view == nullptr ? nullptr : view->ControlOf(focus);
        if (control != nullptr) return control->FullName();
    }
    return {};
}

Said DrivenProgram::TheMessage() {
    const std::vector<Said> said = Messages();
    EXPECT_EQ(said.size(), 1U);
    for (const Said& other : said) {
        if (said.size() > 1) ADD_FAILURE() << other.Title << ": " << other.Text;
    }
    return said.empty() ? Said() : said.back();
}

}  // namespace tav
