// What a run of the program finds around it: folders, screen, clock, the feed library, files and
// the user's answers.
#pragma once

#include "forms/headless_platform.h"
#include "scenario/world.h"

#include <string>
#include <vector>

namespace tav {

class Surroundings {
  public:
    // Makes a temporary folder with an empty folder to start in and a program folder with the
    // delivered feed library. The folder is removed at the end.
    Surroundings(World& world, std::string scriptFolder);
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;
    ~Surroundings();

    HeadlessPlatform Platform;

    // The text with ${APP}, ${START} and ${SCRIPT} filled in.
    std::string Filled(std::string text) const;

    // The statements before the start. Each throws NotPossible when it can't be carried out.
    void SetAppFolder(const std::string& path);
    void SetStartFolder(const std::string& path);
    void SetScreen(int widthInPixels, int heightInPixels);
    void SetClock(const std::string& time);       // "2026-11-22 15:27:05"
    void SetLibrary(const std::string& csvFile);  // or "none"

    // The answers.
    void QueueAnswer(const std::string& answer);
    void QueueFile(const std::string& path);  // or "cancel"
    void QueueOrientation(const std::string& orientation);

  private:
    void ApplyLibrary();

    World& world_;
    std::string scriptFolder_;
    std::string temporary_;
    std::string library_;  // as the script asks for it; empty if it doesn't
};

// Files, at any time. Removing what isn't there does nothing.
void CopyOneFile(const std::string& from, const std::string& to);
void WriteWholeFile(const std::string& path, const std::string& text);
void RemoveFile(const std::string& path);
void MakeFolder(const std::string& path);

}  // namespace tav
