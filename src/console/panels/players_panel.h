#pragma once

#include <QWidget>

#include "console/mirror.h"

namespace zelvor {

// The two teams with 24 players each, in two columns of twelve.
class PlayersPanel : public QWidget {
    Q_OBJECT

 public:
    explicit PlayersPanel(const Mirrors& mirrors);

 private:
    static TextLabel* teamName(const Mirrors& mirrors, const ControlRow& team, const QString& nobody);
    static QLayout* players(const Mirrors& mirrors, const ControlRow& row);
};

// The eight proposals, four in a row.
class ProposalsPanel : public QWidget {
    Q_OBJECT

 public:
    explicit ProposalsPanel(const Mirrors& mirrors);
};

}  // namespace zelvor
