// What the program asks of its surroundings. The logic knows only this interface; the desktop, the
// headless tool and the tests each have their own implementation.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tav {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class MessageAnswer { OK, Cancel, Yes, No };

// A message box. The text's line breaks are carriage returns, some with a line feed.
struct Message {
    std::string Text;
    std::string Title;
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::OK;
};

// The file and help dialogs of a form. What a dialog leaves in FileName stands there as the first
// proposal when the next one opens; a cancelled dialog changes nothing.
struct CommonDialog {
    enum FileFlags : int {
        kOverwritePrompt = 2,
        kNoChangeDir = 8,
        kFileMustExist = 4096,
    };
    enum HelpCommands : int {
        kHelpTopic = 1,       // the viewer, opened at a topic
        kHelpTopicPopUp = 8,  // a topic in a small window of its own
        kHelpFinder = 11,     // contents and index
    };

    std::string DialogTitle;  // empty: the platform's own
    std::string InitDir;      // the folder that is shown first
    std::string FileName;     // in: the name proposed; out: the full path chosen
    std::string FileTitle;    // out: the name of the chosen file without its folder
    std::string Filter;       // pairs of caption and pattern, all separated by bars
    int FilterIndex = 0;      // the pair that is in force at first, from 1
    int Flags = 0;
    std::string HelpFile;
    int HelpCommand = 0;
    std::string HelpTopic;  // the control that help is wanted on, for the two topic commands
};

// The screen that the program runs on. Layout units are 1/1440 of an inch, 15 of them a pixel.
struct ScreenSize {
    int Width = 1280 * 15;  // layout units
    int Height = 1024 * 15;
    int UnitsPerPixelX = 15;
    int UnitsPerPixelY = 15;
};

// Each operation but the message box has a default that suits a program without a screen.
class Platform {
  public:
    virtual ~Platform() = default;

    // Shows the message and waits for the user's choice among its buttons.
    virtual MessageAnswer ShowMessage(const Message& message) = 0;

    // Lets the user choose a file to open or a place to save to. True: FileName and FileTitle are
    // set. False: cancelled, nothing is changed.
    virtual bool ShowOpenDialog(CommonDialog& dialog);
    virtual bool ShowSaveDialog(CommonDialog& dialog);

    // Opens HelpFile in the help viewer, as HelpCommand says.
    virtual void ShowHelp(const CommonDialog& dialog);

    // The printer set-up dialog. Takes the page orientation, 0 portrait or 1 landscape, and returns
    // the one that the user leaves.
    virtual int ShowPrinterSetup(int orientation);

    // Turns the mouse pointer into the hourglass, or back.
    virtual void ShowHourglass(bool /*on*/) {}

    // The user's wall clock, in whole seconds.
    virtual std::chrono::local_seconds Now();

    virtual ScreenSize Screen();

    // The folder of the running program, and the one that is current, both without a closing
    // separator.
    virtual std::string ProgramFolder();
    virtual std::string CurrentFolder();

    // A text value of the system's registry under the local machine's key; nothing where there is
    // no such value or no registry.
    virtual std::optional<std::string> RegistryText(std::string_view key, std::string_view value);

    // Starts another program in a window of its own and does not wait for it. Raises 53 when there
    // is no such program.
    virtual void StartProcess(const std::string& program);

    // Tells the user that a run-time error has ended the program; on standard error by default.
    virtual void ReportFatalError(int number, const std::string& description);
};

// The implementation in use. SetPlatform keeps a reference; the object must outlive the program.
Platform& ThePlatform();
void SetPlatform(Platform& platform);

// The platform's own separator between a folder and a name: "/" or "\".
extern const char kPathSeparator;

// folder, the separator, name.
std::string JoinPath(std::string_view folder, std::string_view name);

}  // namespace tav
