#include "screens/ration_form.h"

namespace tav {

RationForm::RationForm() : ScreenForm("Ration") {}

}  // namespace tav
