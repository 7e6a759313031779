#pragma once

#include "console/panels/panel_frame.h"

class QAbstractItemModel;
class QPlainTextEdit;

namespace zelvor {

// The socket history, or in its place the last template data, readable or as it was sent.
class HistoryPanel : public PanelFrame {
    Q_OBJECT

 public:
    // history: oldest line on top; must outlive the panel.
    HistoryPanel(const Mirrors& mirrors, QAbstractItemModel& history);

 private:
    void showTemplate();

    const Control& template_;
    QPlainTextEdit* view_;
    const Control& asSent_;
};

// Template data with its elements on lines of their own, indented; the text as it is when it is no XML.
QString readableXml(const QString& xml);

}  // namespace zelvor
