#pragma once

#include "app_cards/find_desk.h"
#include "app_cards/remote_desk.h"
#include "app_cards/settings_desk.h"
#include "app_cards/system_desktop.h"
#include "as_run/as_run_record.h"
#include "ask_dialog/ask_form.h"
#include "base/program.h"
#include "command_line/host_port.h"
#include "console/boxes.h"
#include "console/input_times.h"
#include "console/main_window.h"
#include "console/paint_hold.h"
#include "console_rules/card_console.h"
#include "console_rules/card_troubles.h"
#include "console_rules/start_up.h"
#include "data/connection_status.h"
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
        // Answers to the questions of the start; without them the operator is asked.
        QString pack = {};
        std::optional<qint16> connection = {};
        int querySeconds = Patience::kSeconds;
        // The servers' addresses, and whether those given are connected at the start.
        std::optional<HostPort> main = {};
        std::optional<HostPort> remote = {};
        bool connects = false;
        bool keepsAsRun = true;  // but for the preview instance, which puts nothing on air
        RemoteOptions remoteControl = {};
        std::optional<theme::Theme> theme = {};  // in place of the one shown last
        bool touch = false;                      // also without a touch screen
    };

    explicit CardsApp(const Options& options);

    // Runs the load sequence, which asks for the pack and then shows the window, as it was last. It is built while the
    // operator reads the question.
    void start();

    // Built when it is first wanted.
    MainWindow& window() { return front().window; }
    ShowState& state() { return state_; }
    Program& program() { return program_; }
    FormModel& form() { return form_; }
    CardEngine& engine() { return engine_; }
    CardConsole& cards() { return cards_; }
    Boxes& boxes() { return boxes_; }
    GraphicsLinks& links() { return links_; }
    SettingsDesk& settings() { return front().settings; }
    GameDesk& desk() { return desk_; }
    RemoteDesk& remote() { return remote_; }

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    // The operator's window and what is put together around it.
    struct Front {
        explicit Front(CardsApp& app);

        MainWindow window;
        PaintHold paintHold{window};
        SettingsDesk settings;
        FindDesk find;
    };

    Front& front();
    void answerWindow();
    StartUp::Steps steps();
    void answerLinks();
    void answerDesk();
    void takeProposal(int index, const Presser& presser);
    void nameServers();
    void tellTroubles();
    void tellTroubles(LinkId id);
    void tell(const ErrorPlace& place, const QString& message);
    bool mayClose();
    void release();
    void keepAsRun();

    Options options_;
    ShowState state_;
    FormModel form_;
    Program program_;
    SystemClock clock_{program_.closing};
    Boxes boxes_{program_};
    InputTimes inputTimes_;
    GraphicsLinks links_{form_, clock_, program_};
    Connections database_;
    ConnectionStatus databaseStatus_{database_, form_, clock_};
    AskFormDialog ask_{state_, database_, program_};
    SystemDesktop desktop_{program_.folder};
    CardEngine engine_{state_, form_, program_, {boxes_, ask_, links_, links_, database_, desktop_, clock_}};
    Packs packs_{state_, form_, program_, boxes_};
    FormEvents events_{program_.trap};
    CardConsole cards_{engine_};
    CardTroubles troubles_{engine_};
    GameDesk desk_{engine_};
    LinkConsole linkConsole_;
    LookMemory look_{program_};
    SettingsRules settingsRules_{engine_, packs_, boxes_};
    std::optional<Front> front_;
    StartUp startUp_;
    RemoteDesk remote_{engine_, cards_, desk_};
    std::optional<AsRunFile> asRunFile_;
    std::optional<AsRunRecord> asRun_;
    bool telling_ = false;
};

}  // namespace zelvor
