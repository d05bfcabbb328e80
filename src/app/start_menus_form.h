#pragma once

#include <QMainWindow>
#include <QMenu>
#include <functional>

#include "app/start_up.h"

namespace verandis {

/// The menus of the main window. Every command is an action whose objectName is its command name.
class StartMenus {
public:
    /// Fills the window's menu bar.
    explicit StartMenus(QMainWindow& window);

    /// What a command does. Commands without a handler are disabled and say that they come later.
    void Connect(const char* command, std::function<void()> handler);

    /// Puts the catalogue's texts on all menus and commands.
    void TakeTexts();

    /// Enables the commands that the state allows.
    void Follow(const MenuState& state);

    QAction& Command(const char* command) const;

private:
    QMenu* MenuOf(const char* name) const;

    QMainWindow& window_;
};

}  // namespace verandis
