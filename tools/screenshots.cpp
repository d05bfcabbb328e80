// Drives the windows like a user and writes a picture of each state:
//   screenshots FOLDER [language 1|2] [light|dark] [font size in percent]
// The settings name the data root. Runs without a screen.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <iostream>

#include "app/about_form.h"
#include "app/building_picture_form.h"
#include "app/help_form.h"
#include "app/session.h"
#include "app/start_form.h"
#include "app/sys_init_form.h"
#include "dialogs/demands_form.h"
#include "dialogs/geometry_form.h"
#include "dialogs/glazing_form.h"
#include "dialogs/hvac_form.h"
#include "dialogs/opaque_form.h"
#include "dialogs/shade_site_form.h"
#include "libraries/type_library_form.h"
#include "platform/prompts.h"
#include "projects/case_forms_form.h"
#include "projects/saved_list_form.h"
#include "projects/saved_slots_form.h"
#include "results/min_temp_form.h"
#include "results/show_cases_form.h"

namespace {

using verandis::StartForm;

QPalette DarkPalette() {
    QPalette dark;
    const QColor ground(45, 45, 48);
    const QColor field(30, 30, 32);
    const QColor text(230, 230, 230);
    dark.setColor(QPalette::Window, ground);
    dark.setColor(QPalette::Button, ground);
    dark.setColor(QPalette::Base, field);
    dark.setColor(QPalette::AlternateBase, ground);
    dark.setColor(QPalette::ToolTipBase, field);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        dark.setColor(role, text);
        dark.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    }
    dark.setColor(QPalette::Mid, QColor(90, 90, 94));
    dark.setColor(QPalette::Highlight, QColor(60, 120, 190));
    dark.setColor(QPalette::HighlightedText, text);
    return dark;
}

/// Answers every question of the design guide with yes.
void AnswerQuestions(QTimer& timer) {
    QObject::connect(&timer, &QTimer::timeout, [] {
        QWidget* box = QApplication::activeModalWidget();
        auto* yes = box ? box->findChild<QPushButton*>("Command1_1") : nullptr;
        if (yes) yes->click();
    });
    timer.start(20);
}

class Camera {
public:
    explicit Camera(const QString& folder) : folder_(folder) { QDir().mkpath(folder); }

    void Take(QWidget& window, const char* name) const {
        QApplication::processEvents();
        const QString path = QString("%1/%2.png").arg(folder_, QString(name));
        if (!window.grab().save(path)) std::cerr << "cannot write " << path.toStdString() << "\n";
    }

private:
    QString folder_;
};

void Press(QWidget& window, const char* name) {
    auto* control = window.findChild<QWidget*>(name);
    if (!control) {
        std::cerr << "no control " << name << "\n";
        std::exit(1);
    }
    const bool mark =
        qobject_cast<QAbstractButton*>(control) && !qobject_cast<QPushButton*>(control);
    QTest::mouseClick(control, Qt::LeftButton, {},
                      mark ? QPoint(8, control->height() / 2) : control->rect().center());
}

void TakeResults(StartForm& form, const Camera& camera) {
    for (const char* name :
         {"Frame2", "CalcStSt", "Check1", "ChkCase11", "ChkCase22", "ChkCase33", "ChkCase44"}) {
        Press(form, name);
    }
    camera.Take(form, "marked");
    Press(form, "Calculate");
    auto& tabs = *form.findChild<QTabWidget*>("SSTab1");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (!tabs.isTabEnabled(tab)) continue;
        tabs.setCurrentIndex(tab);
        camera.Take(form, QString("tab%1").arg(tab).toLatin1());
    }
    if (auto* guide = form.findChild<verandis::Ststcalcchart*>()) {
        auto* rows = guide->findChild<QComboBox*>("Combo1");
        rows->setCurrentIndex(0);
        emit rows->activated(0);
        camera.Take(*guide, "guide");
    }
}

template <class Dialog>
void TakeDialog(StartForm& form, const Camera& camera, const char* name) {
    Dialog dialog(&form);
    dialog.show();
    camera.Take(dialog, name);
}

void TakeDialogs(StartForm& form, const Camera& camera) {
    namespace forms = verandis::forms;
    TakeDialog<verandis::SysInit>(form, camera, "settings");
    TakeDialog<verandis::EditBuildingData>(form, camera, "building-data");
    TakeDialog<verandis::GeoUShape>(form, camera, "geometry");
    TakeDialog<verandis::ShadeSite>(form, camera, "site");
    TakeDialog<verandis::OpaqueConstrUShape>(form, camera, "constructions");
    TakeDialog<verandis::GlazingUShape>(form, camera, "glazing");
    TakeDialog<verandis::HVACForm>(form, camera, "conditions");
    TakeDialog<verandis::HVACformX>(form, camera, "demands");
    TakeDialog<verandis::ReferenceWindowsLib>(form, camera, "windows");
    TakeDialog<verandis::OpaqueWallsLib>(form, camera, "walls");
    TakeDialog<verandis::SaveCases>(form, camera, "save-cases");
    TakeDialog<verandis::LoadCases>(form, camera, "load-cases");
    TakeDialog<verandis::ShowCases>(form, camera, "show-cases");
    TakeDialog<verandis::BMinTemp>(form, camera, "minimum-temperatures");
    TakeDialog<verandis::HelpWindow>(form, camera, "help");
    TakeDialog<verandis::AboutBox>(form, camera, "about");
    TakeDialog<verandis::BuildingPicture>(form, camera, "picture");
    TakeDialog<forms::NewProject>(form, camera, "new-project");
    TakeDialog<forms::OpenProject>(form, camera, "open-project");
    TakeDialog<forms::RenProject>(form, camera, "rename-project");
    TakeDialog<forms::CopyCase>(form, camera, "copy-case");
    TakeDialog<forms::RenCase>(form, camera, "rename-case");
}

}  // namespace

/// Says yes to everything, so that nothing waits for a user.
class YesPrompts : public verandis::Prompts {
public:
    void Message(const std::string&, const std::string&, verandis::Icon) override {}
    bool AskYesNo(const std::string&, const std::string&) override { return true; }
    verandis::Answer AskYesNoCancel(const std::string&, const std::string&) override {
        return verandis::Answer::Yes;
    }
    std::optional<std::string> AskText(const std::string&, const std::string&,
                                       const std::string&) override {
        return std::nullopt;
    }
};

int main(int count, char** arguments) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const QApplication application(count, arguments);
    const QStringList words = QApplication::arguments();
    if (words.size() < 2) {
        std::cerr << "screenshots FOLDER [1|2] [light|dark] [font percent]\n";
        return 1;
    }
    if (words.value(3) == "dark") QApplication::setPalette(DarkPalette());
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * words.value(4, "100").toDouble() / 100);
    QApplication::setFont(font);
    YesPrompts prompts;
    verandis::UsePrompts(prompts);
    QTimer answers;
    AnswerQuestions(answers);
    StartForm form;
    form.resize(words.size() > 5 ? form.minimumSize() : QSize(1280, 820));
    form.show();
    const Camera camera(words[1]);
    camera.Take(form, "start");
    TakeResults(form, camera);
    TakeDialogs(form, camera);
    return 0;
}
