// The surroundings of a program without a screen: messages are remembered, nothing else is there.
#pragma once

#include "core/platform.h"

#include <filesystem>
#include <string>

namespace tav {

class HeadlessScreen : public Platform {
  public:
    MessageAnswer ShowMessage(const Message& message) override {
        last_ = message;
        return MessageAnswer::OK;
    }

    // Where the program stands, as far as the system tells; otherwise the current folder.
    std::string ProgramFolder() override {
        std::error_code error;
        const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
        return error ? CurrentFolder() : program.parent_path().string();
    }

    // The message that was shown last.
    const Message& LastMessage() const { return last_; }

  private:
    Message last_;
};

}  // namespace tav
