-- The tables that `zelvor feed --into` fills (docs/live-data.md), empty, and what the packs read instead of the demo's own
-- figures: views that give the live ones where there are any. tools/make-demo-database puts them behind demo.sql.

create table live_game (
  state varchar(20), period integer, clock varchar(8), shot_clock integer,
  home_name varchar(60), away_name varchar(60), home_score integer, away_score integer,
  home_fouls integer, away_fouls integer, home_timeouts integer, away_timeouts integer,
  possession varchar(1), heard_at varchar(19)
);
create table live_player (
  side varchar(1), shirt varchar(4), first_name varchar(60), last_name varchar(60), starter integer, on_court integer,
  points integer, fouls integer, rebounds_offensive integer, rebounds_defensive integer, rebounds integer,
  assists integer, steals integer, blocks integer, turnovers integer, minutes varchar(8),
  fg_made integer, fg_tried integer, three_made integer, three_tried integer, ft_made integer, ft_tried integer,
  plus_minus integer
);
create table live_action (
  number integer primary key, period integer, clock varchar(8), side varchar(1), shirt varchar(4),
  kind varchar(20), detail varchar(40), success integer, home_score integer, away_score integer
);
create table live_feed (id integer primary key, owner varchar(80), beat integer);

-- An event of the live game that a proposal is about; null for the demo's own proposals.
alter table proposedcard add column pc_event varchar(60);

-- The game of the demo that is live: the one between the teams that the source names.
create view live_now as
  select g.game_id, g.home_id, g.away_id, l.home_score, l.away_score, l.period, l.home_fouls, l.away_fouls
  from live_game l, game g
  join team h on h.team_id = g.home_id join team a on a.team_id = g.away_id
  where coalesce(l.home_name, h.name_en) = h.name_en and coalesce(l.away_name, a.name_en) = a.name_en;

-- Its players, found by side and shirt.
create view live_roster as
  select n.game_id, p.player_id, l.*
  from live_player l cross join live_now n
  join player p on p.team_id = case l.side when 'H' then n.home_id else n.away_id end
    and p.shirt = cast(l.shirt as integer);

create view evening_statistics as
  select game_id, player_id, cast(coalesce(minutes, '0') as integer) as minutes, coalesce(points, 0) as points,
    coalesce(rebounds, 0) as rebounds, coalesce(assists, 0) as assists, coalesce(fouls, 0) as fouls, starter
  from live_roster
  union all
  select s.game_id, s.player_id, s.minutes, s.points, s.rebounds, s.assists, s.fouls, p.position_no < 5
  from statistics s join player p on p.player_id = s.player_id
  where s.game_id not in (select game_id from live_roster);

create view evening_five as
  select player_id from live_roster where starter = 1
  union all
  select player_id from player where position_no < 5 and not exists (select 1 from live_roster where starter = 1);

-- A player's points in a quarter; overtimes are one.
create view live_points as
  select case when period > 5 then 5 else period end as quarter, side, case kind when '3pt' then 3 when '2pt' then 2 else 1 end as points
  from live_action where kind in ('2pt', '3pt', 'freethrow') and success = 1;

create view live_quarters as
  select q.quarter,
    (select coalesce(sum(points), 0) from live_points p where p.quarter = q.quarter and side = 'H') as home,
    (select coalesce(sum(points), 0) from live_points p where p.quarter = q.quarter and side = 'A') as away
  from (select distinct case when period > 5 then 5 else period end as quarter from live_action where period > 0) q;

-- Null for a quarter that has not been played; q5 is the overtime.
create view evening_quarters as
  select n.game_id,
    (select home from live_quarters where quarter = 1) as home_q1, (select home from live_quarters where quarter = 2) as home_q2,
    (select home from live_quarters where quarter = 3) as home_q3, (select home from live_quarters where quarter = 4) as home_q4,
    (select home from live_quarters where quarter = 5) as home_q5,
    (select away from live_quarters where quarter = 1) as away_q1, (select away from live_quarters where quarter = 2) as away_q2,
    (select away from live_quarters where quarter = 3) as away_q3, (select away from live_quarters where quarter = 4) as away_q4,
    (select away from live_quarters where quarter = 5) as away_q5
  from live_now n where exists (select 1 from live_action)
  union all
  select game_id, home_q1, home_q2, home_q3, home_q4, null, away_q1, away_q2, away_q3, away_q4, null
  from game where not exists (select 1 from live_action) or game_id not in (select game_id from live_now);
