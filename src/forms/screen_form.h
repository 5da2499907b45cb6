// What the four screens inside the main window have in common.
#pragma once

#include "forms/form.h"

#include <string>

namespace tav {

// A screen fills the main window's client area, its controls scaled to it. Loading it shows the
// record's values and makes it the CurrentScreen; unloading it stores what stands in its controls.
class ScreenForm : public Form {
  public:
    // key is "Inputs", "Feeds", "Ration" or "Reports"; the form's name is "frm" and the key.
    explicit ScreenForm(const std::string& key);

    // Shows the record's values anew.
    virtual void SetUp() {}

    // Brings what stands in the controls into the record. The main window asks for it before a
    // command writes to a file.
    virtual void Store() {}

  protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

  private:
    void FillClientArea();

    std::string key_;
};

}  // namespace tav
