#include "forms/headless_platform.h"

#include "core/program_state.h"
#include "forms/form_registry.h"
#include "forms/timer.h"

#include <algorithm>
#include <filesystem>

namespace tav {
namespace {

bool Offers(MessageButtons buttons, MessageAnswer answer) {
    switch (buttons) {
        case MessageButtons::OK: return answer == MessageAnswer::OK;
        case MessageButtons::OKCancel:
            return answer == MessageAnswer::OK || answer == MessageAnswer::Cancel;
        case MessageButtons::YesNo:
            return answer == MessageAnswer::Yes || answer == MessageAnswer::No;
        case MessageButtons::YesNoCancel: return answer != MessageAnswer::OK;
    }
    return false;
}

std::vector<Timer*> RunningTimers() {
    std::vector<Timer*> timers;
    for (Form* const form : TheForms().Loaded()) {
        for (Control* const control : form->Controls()) {
            auto* const timer = dynamic_cast<Timer*>(control);
            if (timer != nullptr && timer->IsRunning()) timers.push_back(timer);
        }
    }
    return timers;
}

}  // namespace

MessageAnswer HeadlessPlatform::ShowMessage(const Message& message) {
    MessageAnswer answer = MessageAnswer::OK;
    if (message.Buttons != MessageButtons::OK) {
        if (Answers.empty())
            throw NoAnswer("no answer is queued for the message \"" + message.Title + "\"");
        answer = Answers.front();
        if (!Offers(message.Buttons, answer)) {
            throw NoAnswer("the message \"" + message.Title +
                           "\" has no button for the queued answer");
        }
        Answers.pop_front();
    }
    Messages.push_back({message, answer});
    return answer;
}

bool HeadlessPlatform::ChooseFile(DialogKind kind, CommonDialog& dialog) {
    Dialogs.push_back({kind, dialog});
    if (Files.empty()) throw NoAnswer("no answer is queued for the file dialog");
    const std::optional<std::string> file = Files.front();
    Files.pop_front();
    if (!file) return false;
    dialog.FileName = *file;
    dialog.FileTitle = std::filesystem::path(*file).filename().string();
    return true;
}

bool HeadlessPlatform::ShowOpenDialog(CommonDialog& dialog) {
    return ChooseFile(DialogKind::Open, dialog);
}

bool HeadlessPlatform::ShowSaveDialog(CommonDialog& dialog) {
    return ChooseFile(DialogKind::Save, dialog);
}

void HeadlessPlatform::ShowHelp(const CommonDialog& dialog) {
    Dialogs.push_back({DialogKind::Help, dialog});
}

int HeadlessPlatform::ShowPrinterSetup(int orientation) {
    Dialogs.push_back({DialogKind::Printer, {}});
    if (Orientations.empty()) return orientation;
    const int chosen = Orientations.front();
    Orientations.pop_front();
    return chosen;
}

std::chrono::local_seconds HeadlessPlatform::Now() {
    return std::chrono::floor<std::chrono::seconds>(Clock);
}

void HeadlessPlatform::Advance(std::chrono::milliseconds time) {
    auto left = static_cast<long long>(time.count());
    while (left > 0 && !TheProgram().Ended) {
        long long step = left;
        for (const Timer* const timer : RunningTimers()) {
            step = std::clamp<long long>(timer->Remaining(), 0, step);
        }
        left -= step;
        Clock += std::chrono::milliseconds(step);
        TheForms().Run([&] {
            for (Timer* const timer : RunningTimers())
                timer->Elapse(static_cast<int>(step));
        });
    }
}

}  // namespace tav
