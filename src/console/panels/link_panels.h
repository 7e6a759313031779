#pragma once

#include <QListView>

#include "console/panels/panel_frame.h"

class QAbstractItemModel;

namespace zelvor {

// "Network": the remote graphics server.
class NetworkPanel : public PanelFrame {
    Q_OBJECT

 public:
    explicit NetworkPanel(const Mirrors& mirrors);
};

// "Caspar": the main graphics server, its replies, the manual line, the log switch.
class CasparPanel : public PanelFrame {
    Q_OBJECT

 public:
    // responses: newest line on top; must outlive the panel.
    CasparPanel(const Mirrors& mirrors, QAbstractItemModel& responses);

 Q_SIGNALS:
    // Up and Down in the manual box.
    void olderWanted();
    void newerWanted();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

// Lies over the controls that a pack hides and keeps the keyboard from them: says so, and lets links be connected.
class ControlsCover : public QWidget {
    Q_OBJECT

 public:
    ControlsCover(const Mirrors& mirrors, QWidget& covered);
};

}  // namespace zelvor
