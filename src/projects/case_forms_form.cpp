#include "projects/case_forms_form.h"

#include "projects/case_list.h"
#include "projects/project_list.h"

namespace verandis::forms {
namespace {

using enum ListKind;
using enum RowUse;
using Name = const std::string&;

enum : int {
    kDeleteText = 48,
    kOkText = 246,
    kProjectName = 740,
    kCopyName = 742,
    kNewName = 743,
    kCaseName = 744,
    kNameTip = 750,
    kCaseNameTip = 751,
    kFolderStaysTip = 762
};

constexpr ListDialogFacts kNewProject = {
    .window = "NewProject",
    .caption = 501,
    .kind = Projects,
    .use = Shown,
    .listTip = 760,
    .nameField = "ProjectName",
    .nameLabel = kProjectName,
    .nameTip = kNameTip,
    .acceptText = kOkText,
    .accept = [](const ListRow&, Name name, Name) { return CreateProject(name); },
};

constexpr ListDialogFacts kOpenProject = {
    .window = "OpenProject",
    .caption = 502,
    .kind = Projects,
    .use = Needed,
    .listTip = 753,
    .acceptText = kOkText,
    .accept =
        [](const ListRow& row, Name, Name) {
            verandis::OpenProject({row.name, row.detail});
            return true;
        },
};

constexpr ListDialogFacts kCopyProject = {
    .window = "CopyProject",
    .caption = 503,
    .kind = Projects,
    .use = Needed,
    .listTip = 754,
    .nameField = "TargetName",
    .nameLabel = kCopyName,
    .nameTip = kNameTip,
    .acceptText = kOkText,
    .accept =
        [](const ListRow& row, Name name, Name) {
            return verandis::CopyProject({row.name, row.detail}, name);
        },
};

constexpr ListDialogFacts kRenProject = {
    .window = "RenProject",
    .caption = 504,
    .kind = Projects,
    .use = OpenOne,
    .listTip = 755,
    .nameField = "ProjectName",
    .nameLabel = kNewName,
    .nameTip = kFolderStaysTip,
    .namePrefilled = true,
    .acceptText = kOkText,
    .accept =
        [](const ListRow& row, Name name, Name) {
            return RenameProject({row.name, row.detail}, name);
        },
};

constexpr ListDialogFacts kDelProject = {
    .window = "DelProject",
    .caption = 505,
    .kind = Projects,
    .use = AskedAtOnce,
    .listTip = 756,
    .acceptText = kDeleteText,
    .accept =
        [](const ListRow& row, Name, Name) {
            return DeleteProject({row.name, row.detail});
        },
};

constexpr ListDialogFacts kNewCase = {
    .window = "NewCase",
    .caption = 506,
    .kind = Cases,
    .use = Shown,
    .listTip = 761,
    .nameField = "CaseName",
    .nameLabel = kCaseName,
    .nameTip = kCaseNameTip,
    .hasTitle = true,
    .acceptText = kOkText,
    .accept = [](const ListRow&, Name name, Name title) { return CreateCase(name, title); },
};

constexpr ListDialogFacts kOpenCase = {
    .window = "OpenCase",
    .caption = 507,
    .kind = Cases,
    .use = Needed,
    .listTip = 757,
    .acceptText = kOkText,
    .accept =
        [](const ListRow& row, Name, Name) {
            verandis::OpenCase({row.name, row.detail});
            return true;
        },
};

constexpr ListDialogFacts kCopyCase = {
    .window = "CopyCase",
    .caption = 508,
    .kind = Cases,
    .use = Needed,
    .listTip = 758,
    .nameField = "CaseName",
    .nameLabel = kCopyName,
    .nameTip = kCaseNameTip,
    .hasTitle = true,
    .acceptText = kOkText,
    .accept =
        [](const ListRow& row, Name name, Name title) {
            return verandis::CopyCase({row.name, row.detail}, name, title);
        },
};

constexpr ListDialogFacts kRenCase = {
    .window = "RenCase",
    .caption = 509,
    .kind = Cases,
    .use = OpenOne,
    .listTip = 759,
    .nameField = "CaseName",
    .nameLabel = kNewName,
    .nameTip = kCaseNameTip,
    .namePrefilled = true,
    .hasTitle = true,
    .acceptText = kOkText,
    .accept =
        [](const ListRow& row, Name name, Name title) {
            return RenameCase({row.name, row.detail}, name, title);
        },
};

}  // namespace

NewProject::NewProject(QWidget* parent) : ListDialog(kNewProject, parent) {}
OpenProject::OpenProject(QWidget* parent) : ListDialog(kOpenProject, parent) {}
CopyProject::CopyProject(QWidget* parent) : ListDialog(kCopyProject, parent) {}
RenProject::RenProject(QWidget* parent) : ListDialog(kRenProject, parent) {}
DelProject::DelProject(QWidget* parent) : ListDialog(kDelProject, parent) {}
NewCase::NewCase(QWidget* parent) : ListDialog(kNewCase, parent) {}
OpenCase::OpenCase(QWidget* parent) : ListDialog(kOpenCase, parent) {}
CopyCase::CopyCase(QWidget* parent) : ListDialog(kCopyCase, parent) {}
RenCase::RenCase(QWidget* parent) : ListDialog(kRenCase, parent) {}

}  // namespace verandis::forms
