// The surroundings of a program without a screen: messages are remembered, nothing else is there.
#pragma once

#include "core/platform.h"

namespace tav {

class HeadlessScreen : public Platform {
  public:
    MessageAnswer ShowMessage(const Message& message) override {
        last_ = message;
        return MessageAnswer::OK;
    }

    // The message that was shown last.
    const Message& LastMessage() const { return last_; }

  private:
    Message last_;
};

}  // namespace tav
