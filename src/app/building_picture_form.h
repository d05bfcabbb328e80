#pragma once

#include <QDialog>
#include <QImage>
#include <string>

#include "ui/plan_view.h"

QT_BEGIN_NAMESPACE
class QLabel;
class QPaintDevice;
class QPainter;
class QPushButton;
QT_END_NAMESPACE

namespace verandis {

/// Plan and section of the active slot, large; to copy, save and print. Modeless: it follows the
/// active slot whenever it is shown or comes to the front.
class BuildingPicture : public QDialog {
    Q_OBJECT
public:
    explicit BuildingPicture(QWidget* parent = nullptr);

    /// Reads the active slot anew and draws it.
    void ShowActiveSlot();

    void CopyPicture();

    /// Writes the drawing as PNG on white. False, after a message, when that fails.
    bool SavePicture(const std::string& path);

    /// Draws title and drawing on the whole page of a device, say a printer.
    void PrintOn(QPaintDevice& device);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void AskAndSave();
    void Print();
    void DrawSheet(QPainter& painter, QSize size) const;
    QImage Picture() const;

    QLabel* title_;
    PlanView* plan_;
    QPushButton* copy_;
    QPushButton* save_;
    QPushButton* print_;
    Slot slot_;
};

}  // namespace verandis
