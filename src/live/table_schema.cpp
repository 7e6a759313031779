#include "live/table_schema.h"

#include <array>

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

struct Table {
    QStringView name;
    QStringView columns;
};

// Types that SQLite, MariaDB and PostgreSQL have in common.
constexpr std::array kTables{
    Table{u"live_game",
          u"state varchar(20), period integer, clock varchar(8), shot_clock integer, home_name varchar(60), "
          u"away_name varchar(60), home_score integer, away_score integer, home_fouls integer, away_fouls integer, "
          u"home_timeouts integer, away_timeouts integer, possession varchar(1), heard_at varchar(19)"},
    Table{u"live_player",
          u"side varchar(1), shirt varchar(4), first_name varchar(60), last_name varchar(60), starter integer, "
          u"on_court integer, points integer, fouls integer, rebounds_offensive integer, rebounds_defensive integer, "
          u"rebounds integer, assists integer, steals integer, blocks integer, turnovers integer, minutes varchar(8), "
          u"fg_made integer, fg_tried integer, three_made integer, three_tried integer, ft_made integer, "
          u"ft_tried integer, plus_minus integer"},
    Table{u"live_action",
          u"number integer primary key, period integer, clock varchar(8), side varchar(1), shirt varchar(4), "
          u"kind varchar(20), detail varchar(40), success integer, home_score integer, away_score integer"},
    // Which feed writes the others: one row at most.
    Table{u"live_feed", u"id integer primary key, owner varchar(80), beat integer"},
};

bool isThere(Session& session, const QString& table) {
    try {
        session.run(u"select count(*) from "_s + table);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace

QStringList makeLiveTables(Session& session, bool replace) {
    session.open();
    QStringList done;
    for (const Table& table : kTables) {
        const QString name = table.name.toString();
        const bool there = isThere(session, name);
        if (there && !replace) {
            done += name + u": there, kept"_s;
            continue;
        }
        if (there) session.run(u"drop table "_s + name);
        session.run(u"create table "_s + name + u" ("_s + table.columns + u')');
        done += name + (there ? u": made anew"_s : u": made"_s);
    }
    return done;
}

}  // namespace zelvor
