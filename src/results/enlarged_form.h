#pragma once

#include <QDialog>

#include "results/diagrams.h"

namespace verandis {

class DiagramChart;

/// The enlarged forms, each for the diagrams of one quantity; the table stands in the source.
enum class Enlarged { SMITB, SOTB, SLTB, SMETB, SPDB, SHDB, SCDB, SVEB, SMITDB, SMETDB };
inline constexpr int kEnlargedForms = 10;

/// A chart in a window of its own, beside the main window. Escape closes it.
class EnlargedForm : public QDialog {
    Q_OBJECT
public:
    /// Shows the form's first diagram of the last steady-state run.
    explicit EnlargedForm(Enlarged form, QWidget* parent = nullptr);

    /// Takes over a diagram and which of its quantities are shown.
    void Take(const Diagram& diagram, bool firstShown, bool secondShown);

    /// New values of the same diagram; the shown quantities stay.
    void Refresh(const Diagram& diagram);

    DiagramKind kind() const;

    /// Prints the chart by the print dialog.
    void Print();

private:
    DiagramChart* chart_;
};

template <Enlarged form>
class EnlargedAs : public EnlargedForm {
public:
    explicit EnlargedAs(QWidget* parent = nullptr) : EnlargedForm(form, parent) {}
};

using SMITB = EnlargedAs<Enlarged::SMITB>;
using SOTB = EnlargedAs<Enlarged::SOTB>;
using SLTB = EnlargedAs<Enlarged::SLTB>;
using SMETB = EnlargedAs<Enlarged::SMETB>;
using SPDB = EnlargedAs<Enlarged::SPDB>;
using SHDB = EnlargedAs<Enlarged::SHDB>;
using SCDB = EnlargedAs<Enlarged::SCDB>;
using SVEB = EnlargedAs<Enlarged::SVEB>;
using SMITDB = EnlargedAs<Enlarged::SMITDB>;
using SMETDB = EnlargedAs<Enlarged::SMETDB>;

/// The form that serves a diagram.
Enlarged EnlargedFormOf(DiagramKind kind);

/// Class name of a form, which is its objectName.
const char* EnlargedName(Enlarged form);

}  // namespace verandis
