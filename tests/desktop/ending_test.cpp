// Messages, faults, and the ways in which the program ends.
#include "core/runtime_error.h"
#include "desktop/form_view.h"
#include "driven_program.h"

#include <QApplication>
#include <QCloseEvent>
#include <filesystem>
#include <fstream>

namespace tav {
namespace {

namespace fs = std::filesystem;

constexpr char kSettings[] = "TAV Dairy Cattle Program Settings Data File";
constexpr char kDefault[] = "TAV Dairy Cattle Default Simulation Data File.tav";
constexpr char kLibrary[] = "TAV Dairy Cattle Program - Feed Library.mdb";

class Ending : public DrivenProgram {
  protected:
    MessageAnswer Ask(const Message& message, QMessageBox::StandardButton button) {
        Asked.Press(button);
        MessageAnswer answer{};
        TheDesktop().Perform([&] { answer = ThePlatform().ShowMessage(message); });
        return answer;
    }
    // The event loop until the program has ended, as the program itself runs it.
    static int Run() { return QApplication::exec(); }
};

TEST_F(Ending, MessagesLookAsTheProgramSays) {
    OpenCow("Ration");
    using Box = QMessageBox;
    EXPECT_EQ(
        Ask({"a\rb\r\nc", "T", MessageIcon::Question, MessageButtons::YesNoCancel}, Box::Cancel),
        MessageAnswer::Cancel);
    Said said = TheMessage();
    EXPECT_EQ(said.Text, "a\nb\nc");
    EXPECT_EQ(said.Title, "T");
    EXPECT_EQ(said.Icon, Box::Question);
    EXPECT_EQ(said.Buttons, Box::Yes | Box::No | Box::Cancel);
    EXPECT_EQ(said.Format, Qt::PlainText);

    EXPECT_EQ(Ask({"x", "y", MessageIcon::Exclamation, MessageButtons::YesNo}, Box::No),
              MessageAnswer::No);
    EXPECT_EQ(TheMessage().Icon, Box::Warning);
    EXPECT_EQ(Ask({"x", "y", MessageIcon::Critical, MessageButtons::OKCancel}, Box::Ok),
              MessageAnswer::OK);
    EXPECT_EQ(TheMessage().Icon, Box::Critical);
    EXPECT_EQ(Ask({"x", "y", MessageIcon::Information}, Box::Ok), MessageAnswer::OK);
    EXPECT_EQ(TheMessage().Icon, Box::Information);

    // Its close box and Escape say what comes nearest to no.
    const auto escape = [this](MessageButtons buttons) {
        Asked.Do([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        MessageAnswer answer{};
        TheDesktop().Perform([&] { answer = ThePlatform().ShowMessage({"x", "y", {}, buttons}); });
        Messages();
        return answer;
    };
    EXPECT_EQ(escape(MessageButtons::OK), MessageAnswer::OK);
    EXPECT_EQ(escape(MessageButtons::OKCancel), MessageAnswer::Cancel);
    EXPECT_EQ(escape(MessageButtons::YesNo), MessageAnswer::No);
    EXPECT_EQ(escape(MessageButtons::YesNoCancel), MessageAnswer::Cancel);
}

TEST_F(Ending, AMessageStandsOverTheWindowAndItsTitleCanBeRead) {
    OpenCow("Ration");
    Asked.Do([this](QWidget& box) {
        EXPECT_EQ(box.parentWidget(), &MainWindow());
        EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(box.windowTitle()));
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    TheDesktop().Perform([] {
        ThePlatform().ShowMessage(
            {"x", "A title that is by far longer than the text that stands under it"});
    });
    Messages();
}

TEST_F(Ending, TimersWaitForTheAnswer) {
    OpenCow("Ration");
    auto& timer = Model<Timer>("frmParent.AutoSaveTimer");
    int ticks = 0;
    timer.Interval = 5;
    timer.Tick = [&ticks] { ++ticks; };
    TheDesktop().Perform([&timer] { timer.Start(); });
    QTest::qWait(50);
    EXPECT_GT(ticks, 0);
    Asked.Do([&ticks](QWidget& box) {
        const int before = ticks;
        QTest::qWait(300);
        EXPECT_EQ(ticks, before);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    TheDesktop().Perform([] { ThePlatform().ShowMessage({"wait", "wait"}); });
    Messages();
    const int before = ticks;
    QTest::qWait(300);
    EXPECT_GT(ticks, before);
}

TEST_F(Ending, ARunTimeErrorEndsTheProgramWithItsNumber) {
    OpenCow("Ration");
    Model<CommandButton>("frmRation.cmdResetIntake").Click = [] { Raise(kOverflow); };
    QTimer::singleShot(0, qApp, [this] { Click("frmRation.cmdResetIntake"); });
    EXPECT_EQ(Run(), 1);
    EXPECT_TRUE(HasEnded());
    const Said said = TheMessage();
    EXPECT_EQ(said.Text, "Run-time error 6: Overflow");
    EXPECT_EQ(said.Icon, QMessageBox::Critical);
    EXPECT_EQ(said.Format, Qt::PlainText);
    EXPECT_NE(said.Further.find("The program has to end."), std::string::npos);
    EXPECT_FALSE(fs::exists(InFolder(kSettings)) && Content(InFolder(kSettings)).empty());
}

TEST_F(Ending, AFaultWithoutANumberEndsItAsWell) {
    OpenCow("Ration");
    Model<CommandButton>("frmRation.cmdResetIntake").Click = [] {
        throw std::length_error("too <b>much</b>");
    };
    QTimer::singleShot(0, qApp, [this] { Click("frmRation.cmdResetIntake"); });
    EXPECT_EQ(Run(), 1);
    const Said said = TheMessage();
    EXPECT_EQ(said.Text, "too <b>much</b>");
    EXPECT_EQ(said.Format, Qt::PlainText);
}

TEST_F(Ending, SettingsThatCannotBeWrittenAreTold) {
    UseSimulation("Dry Cow");
    fs::create_directory(InFolder(kSettings));
    Begin();
    AcceptTerms();
    EXPECT_EQ(TheMessage().Title, "Error");
    EXPECT_EQ(TheProgram().CurrentScreen, "Feeds");
    Asked.Press(QMessageBox::Yes);
    QTimer::singleShot(0, qApp, [this] { MainWindow().close(); });
    EXPECT_EQ(Run(), 1);
    const std::vector<Said> said = Messages();
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[0].Title, "Exit Program?");
    EXPECT_EQ(said[1].Text, "Run-time error 75: Path/File access error");
    EXPECT_EQ(TheProgram().FatalError, 75);
}

TEST_F(Ending, AMissingOrDamagedFeedLibraryIsTold) {
    fs::remove(InFolder(kLibrary));
    OpenCow("Feeds");
    Click("frmFeeds.cmdAddFeed");
    Said said = TheMessage();
    EXPECT_EQ(said.Title, "Cannot Find Feed Library");
    EXPECT_EQ(said.Icon, QMessageBox::Critical);
    EXPECT_EQ(TheForms().Find("frmAddFeed"), nullptr);
    EXPECT_EQ(Keyboard(), "frmFeeds.cmdAddFeed");
    std::ofstream(InFolder(kLibrary)) << "not a library";
    Click("frmFeeds.cmdAddFeed");
    said = TheMessage();
    EXPECT_EQ(said.Text,
              "Error Number :   3343\nError Description :  Unrecognized database format");
    EXPECT_EQ(Content(InFolder(kLibrary)), "not a library");
    EXPECT_FALSE(HasEnded());
}

TEST_F(Ending, TheCloseBoxAsksBothQuestions) {
    UseSettings("last on inputs, no auto-save on exit");
    UseSimulation("Dry Cow");
    Begin();
    AcceptTerms();
    // No to the first: the screen is back as it was.
    Asked.Press(QMessageBox::No);
    MainWindow().close();
    Settle();
    EXPECT_EQ(TheMessage().Text, "Are you sure you want to quit?");
    EXPECT_FALSE(HasEnded());
    EXPECT_TRUE(WidgetOf("frmInputs.InputTabs").isVisible());
    EXPECT_TRUE(MainWindow().isVisible());

    fs::remove(InFolder(kDefault));
    Asked.Press(QMessageBox::Yes);
    Asked.Press(QMessageBox::Yes);
    QTimer::singleShot(0, qApp, [this] { MainWindow().close(); });
    EXPECT_EQ(Run(), 0);
    const std::vector<Said> said = Messages();
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[1].Title, "Save Defaults Before Exiting?");
    EXPECT_EQ(said[1].Icon, QMessageBox::Question);
    EXPECT_TRUE(fs::exists(InFolder(kDefault)));
    for (const QWidget* const window : QApplication::topLevelWidgets())
        EXPECT_FALSE(window->isVisible()) << window->windowTitle().toStdString();
}

TEST_F(Ending, AWindowIsClosedByItsCloseBoxAsByItsButton) {
    OpenCow("Feeds");
    Click("frmFeeds.cmdAddFeed");
    ViewOf("frmAddFeed").Window()->close();
    Settle();
    EXPECT_EQ(TheForms().Find("frmAddFeed"), nullptr);
    EXPECT_FALSE(HasEnded());
    Begin();  // as after a fault: nothing of the last run is left
    EXPECT_EQ(TheForms().Find("frmParent"), nullptr);
    ViewOf("frmSplash").Window()->close();
    Settle();
    EXPECT_TRUE(HasEnded());
}

// The window keeps the size that its screens are laid out for.
TEST_F(Ending, TheWindowKeepsItsSize) {
    OpenCow("Ration");
    const QSize size = MainWindow().size();
    MainWindow().resize(size * 2);
    Settle();
    EXPECT_EQ(MainWindow().size(), size);
    MainWindow().showMaximized();
    Settle();
    MainWindow().showNormal();
    Settle();
    EXPECT_EQ(MainWindow().size(), size);
}

}  // namespace
}  // namespace tav
