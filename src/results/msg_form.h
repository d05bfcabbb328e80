#pragma once

#include <QDialog>
#include <QPlainTextEdit>
#include <string>

namespace verandis {

/// The question of the design guide: its text and the buttons no and yes. The answer goes to
/// `session.MsgFormAnswer`: 0 no, also when the box is closed by its frame or Escape, 1 yes.
class MsgForm : public QDialog {
    Q_OBJECT
public:
    explicit MsgForm(QWidget* parent = nullptr);

    /// Sets the question; it may hold line ends.
    void SetQuestion(const std::string& question);

    void done(int result) override;

private:
    QPlainTextEdit* Text1;
};

}  // namespace verandis
