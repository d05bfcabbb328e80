#pragma once

#include <QDialog>
#include <functional>

#include "dialogs/building_data.h"

namespace verandis {

/// Makes a dialog on a parent.
using DialogFactory = std::function<QDialog*(QWidget*)>;

/// What opens the dialog of a kind of data for a shape; empty when there is no such dialog, also
/// for an unknown shape and for the design demands, which the main window opens.
const DialogFactory& CaseDialogFactory(CaseData data, int shape);

}  // namespace verandis
