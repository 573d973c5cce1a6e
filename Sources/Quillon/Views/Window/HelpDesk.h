// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quillon/Stores/AppStores.h"

#include <QObject>
#include <QString>

#include <memory>

namespace quillon {

class ContentView;
class HandbookWindow;
class Settings;

/// Where the user finds out what the program does. Nothing of it is made before it is wanted.
class HelpDesk : public QObject {
    Q_OBJECT

  public:
    /// Belongs to `contentView`; the settings outlive it.
    HelpDesk(const AppStores& appStores, Settings& userSettings, ContentView& contentView);
    ~HelpDesk() override;

    /// Opens the handbook, of which there is one window, at the chapter about what the user is doing.
    void showHandbook();
    void showShortcuts();
    /// By its key, tells what the field is for that has the keyboard; otherwise, or if there is nothing to
    /// tell, lets the user point at one.
    void explain();
    void showAbout();

  private:
    void showPart(const QString& anchor);
    QString chapter() const;

    AppStores stores;
    Settings& settings;
    ContentView& window;
    std::unique_ptr<HandbookWindow> handbook;
};

}  // namespace quillon
