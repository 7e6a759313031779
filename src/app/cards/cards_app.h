#pragma once

#include "app_cards/settings_desk.h"
#include "app_cards/system_desktop.h"
#include "ask_dialog/ask_form.h"
#include "base/app_folder.h"
#include "base/error_trap.h"
#include "base/text_file.h"
#include "console/boxes.h"
#include "console/main_window.h"
#include "console_rules/card_console.h"
#include "console_rules/start_up.h"
#include "data/connections.h"
#include "engine/card_engine.h"
#include "engine/packs.h"
#include "engine/show_state.h"
#include "engine/system_clock.h"
#include "feed/game_desk.h"
#include "link/graphics_links.h"
#include "link/link_console.h"

namespace zelvor {

// The operator's console put together: builds the objects and hands them to each other.
class CardsApp : public QObject {
    Q_OBJECT

 public:
    struct Options {
        QString appFolder;
        TextFiles files;
        QString errorLog;
        QString commandLine;  // what is left of it beside the program's own options
        quint16 feedPort = FeedSocket::kPort;
    };

    explicit CardsApp(const Options& options);

    // Runs the load sequence; the window should be on the screen before, so that its questions stand over it.
    void start();

    MainWindow& window() { return window_; }
    ShowState& state() { return state_; }
    FormModel& form() { return form_; }
    Boxes& boxes() { return boxes_; }
    GraphicsLinks& links() { return links_; }
    SettingsDesk& settings() { return settings_; }
    GameDesk& desk() { return desk_; }

 private:
    StartUp::Steps steps();
    void answerLinks();
    void answerDesk();
    void tell(const QString& message);
    void connectDatabase();
    void close();

    quint16 feedPort_;
    ShowState state_;
    FormModel form_;
    AppFolder folder_;
    TextFiles files_;
    ErrorTrap trap_;
    SystemClock clock_{state_};
    Boxes boxes_{state_};
    GraphicsLinks links_{form_, clock_, trap_, folder_, files_};
    Connections database_;
    AskFormDialog ask_{state_, database_, trap_};
    SystemDesktop desktop_{folder_};
    CardEngine engine_{state_, form_, folder_, files_, trap_, {boxes_, ask_, links_, database_, desktop_, clock_}};
    Packs packs_{state_, form_, folder_, files_, trap_, boxes_};
    FormEvents events_{state_, trap_};
    CardConsole cards_{engine_};
    GameDesk desk_{engine_, trap_};
    LinkConsole linkConsole_;
    MainWindow window_{form_, events_, cards_, links_.history(), links_.responses()};
    SettingsDesk settings_{engine_, packs_, cards_, boxes_, trap_, window_};
    StartUp startUp_;
    bool telling_ = false;
};

}  // namespace zelvor
