#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "app/system_settings.h"
#include "ui/controls.h"

namespace verandis {

/// The settings dialog: folders, language, accuracy and decimal sign. At a first start it stands
/// alone, without a catalogue, and makes the data root.
class SysInit : public QDialog {
    Q_OBJECT
public:
    explicit SysInit(QWidget* parent = nullptr);

    /// True when OK has done the start's steps again, in another folder of data.
    bool StartedAnew() const { return outcome_.restarted; }

    void accept() override;

private:
    void PrepareProgress();
    void AddPath(FieldGrid& grid, const QString& caption, QLineEdit* field, QWidget* browser);
    void AddLanguage(FieldGrid& grid);
    QLayout* ButtonLine();
    void FillLists();
    Settings Values() const;
    void ShowProgress(int done, int all);

    QLineEdit* SysPath;
    QLineEdit* LocalPath;
    QComboBox* Lan_Comb;
    QComboBox* Combo1;
    QComboBox* decimalSign_;
    QProgressBar* progress_;
    QPushButton* Command1;
    QPushButton* Command2;
    QPushButton* Command3;
    SettingsOutcome outcome_;
};

}  // namespace verandis
