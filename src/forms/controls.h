// All kinds of controls.
#pragma once

#include "forms/buttons.h"
#include "forms/combo_box.h"
#include "forms/document_pane.h"
#include "forms/file_lists.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/list_box.h"
#include "forms/menu.h"
#include "forms/passive_controls.h"
#include "forms/tab_control.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/toolbar.h"
