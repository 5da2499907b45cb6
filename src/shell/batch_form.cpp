#include "shell/batch_form.h"

#include "forms/form_registry.h"

namespace tav {

BatchForm::BatchForm() : Form("frmBatchOps") {
    Caption = "Batch File Utility";
    Sizable = false;
    cmdReturn.Caption = "Return";
    cmdReturn.Cancel = true;
    cmdReturn.Click = [this] { cmdReturn_Click(); };
    cmdReturn.Move(8160, 5640, 1680, 435);
    Width = 10080 + FrameWidth;
    Height = 6300 + FrameHeight;
}

void BatchForm::cmdReturn_Click() { TheForms().Unload(Name()); }

}  // namespace tav
