#pragma once

#include <QDialog>

namespace verandis {

/// Makes the active case what its slot starts with (`Command1`, after a question) and closes.
/// `Command2` closes without; `Label1` tells what it means.
class BasRedef : public QDialog {
    Q_OBJECT
public:
    explicit BasRedef(QWidget* parent = nullptr);
};

}  // namespace verandis
