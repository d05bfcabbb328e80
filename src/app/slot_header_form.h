#pragma once

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>

#include "app/session.h"

namespace verandis {

/// Tells which slot is edited, with its climate and note, and lets the user choose another case of
/// the family.
class SlotHeader : public QWidget {
    Q_OBJECT
public:
    explicit SlotHeader(QWidget* parent = nullptr);

    void TakeTexts();

    /// Shows the active slot as its file stands now.
    void Refresh();

    /// Sets the option of a case without telling anybody.
    void SetActiveCase(int caseNo);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void CaseChosen(int caseNo);
    void NotePressed();
    void DataPressed();

private:
    QString Title() const;
    void ShowFacts();

    QString factText_;
    QLabel* title_;
    QLabel* facts_;
    QLabel* caseWord_;
    QPushButton* note_;
    QPushButton* data_;
    std::array<QRadioButton*, kCasesPerShape> options_{};
};

}  // namespace verandis
