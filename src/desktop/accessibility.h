// Names for screen readers, and access keys of labels.
#pragma once

namespace tav {

class Form;
class FormView;

// Gives each control that takes an entry the name of the label beside or above it, or of the frame
// that it stands in. The label's access key then leads to it.
void NameForScreenReaders(const Form& form, const FormView& view);

}  // namespace tav
