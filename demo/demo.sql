-- The demo's database: an invented league, two invented teams, twelve invented players each.
-- tools/make-demo-database makes demo/demo.db from it. Names stand in English (…_en) and in Greek (…_gr).

create table team (
  team_id integer primary key,
  name_en varchar(40), name_gr varchar(40),
  short_en varchar(5), short_gr varchar(5),
  coach_en varchar(60), coach_gr varchar(60)
);
insert into team values
  (1, 'Harbour City', 'Λιμάνι', 'HBC', 'ΛΙΜ', 'Nikos Andreou', 'Νίκος Ανδρέου'),
  (2, 'Northfield', 'Βόρειος', 'NFD', 'ΒΟΡ', 'Paul Hartwell', 'Πολ Χάρτγουελ');

-- player_id is 100 * team_id + shirt. position_no puts the starting five first.
create table player (
  player_id integer primary key,
  team_id integer not null references team (team_id),
  shirt integer not null,
  position_no integer not null,
  name_en varchar(40), name_gr varchar(40),
  first_en varchar(40), first_gr varchar(40),
  role_en varchar(20), role_gr varchar(20),
  height real, -- metres
  born date
);
insert into player values
  (104, 1, 4, 0, 'Laskaris', 'Λάσκαρης', 'Petros', 'Πέτρος', 'Guard', 'Γκαρντ', 1.88, '1994-07-21'),
  (111, 1, 11, 1, 'Orfanos', 'Ορφανός', 'Alexis', 'Αλέξης', 'Guard', 'Γκαρντ', 1.85, '2005-09-04'),
  (118, 1, 18, 2, 'Vance', 'Βανς', 'Tyler', 'Τάιλερ', 'Forward', 'Φόργουορντ', 2.01, '1992-09-07'),
  (125, 1, 25, 3, 'Petridis', 'Πετρίδης', 'Manos', 'Μάνος', 'Forward', 'Φόργουορντ', 1.98, '1998-07-03'),
  (132, 1, 32, 4, 'Karas', 'Καράς', 'Ilias', 'Ηλίας', 'Centre', 'Σέντερ', 2.11, '1995-02-18'),
  (139, 1, 39, 5, 'Doukas', 'Δούκας', 'Stavros', 'Σταύρος', 'Centre', 'Σέντερ', 2.10, '2005-10-04'),
  (106, 1, 6, 6, 'Rallis', 'Ράλλης', 'Thanos', 'Θάνος', 'Guard', 'Γκαρντ', 1.94, '2002-11-19'),
  (113, 1, 13, 7, 'Stone', 'Στόουν', 'Marcus', 'Μάρκους', 'Forward', 'Φόργουορντ', 2.06, '2001-10-13'),
  (120, 1, 20, 8, 'Markou', 'Μάρκου', 'Aris', 'Άρης', 'Forward', 'Φόργουορντ', 1.98, '1995-01-18'),
  (127, 1, 27, 9, 'Ellis', 'Έλις', 'Jordan', 'Τζόρνταν', 'Guard', 'Γκαρντ', 1.93, '1996-07-05'),
  (134, 1, 34, 10, 'Galanis', 'Γαλάνης', 'Giorgos', 'Γιώργος', 'Centre', 'Σέντερ', 2.11, '2001-05-18'),
  (141, 1, 41, 11, 'Thorne', 'Θορν', 'Owen', 'Όουεν', 'Forward', 'Φόργουορντ', 2.05, '1994-02-19'),
  (205, 2, 5, 0, 'Whitlock', 'Γουίτλοκ', 'Dale', 'Ντέιλ', 'Guard', 'Γκαρντ', 1.90, '1995-06-04'),
  (210, 2, 10, 1, 'Arden', 'Άρντεν', 'Luke', 'Λουκ', 'Guard', 'Γκαρντ', 1.90, '1993-10-02'),
  (214, 2, 14, 2, 'Mavros', 'Μαύρος', 'Nestor', 'Νέστορας', 'Forward', 'Φόργουορντ', 2.03, '1999-11-18'),
  (221, 2, 21, 3, 'Keller', 'Κέλερ', 'Jonas', 'Γιόνας', 'Forward', 'Φόργουορντ', 2.01, '1997-08-19'),
  (233, 2, 33, 4, 'Osborne', 'Όσμπορν', 'Grant', 'Γκραντ', 'Centre', 'Σέντερ', 2.15, '1997-05-08'),
  (240, 2, 40, 5, 'Brandt', 'Μπραντ', 'Emil', 'Εμίλ', 'Centre', 'Σέντερ', 2.14, '2003-04-03'),
  (207, 2, 7, 6, 'Sayle', 'Σέιλ', 'Corey', 'Κόρι', 'Guard', 'Γκαρντ', 1.90, '2000-08-11'),
  (212, 2, 12, 7, 'Dorn', 'Ντορν', 'Felix', 'Φέλιξ', 'Guard', 'Γκαρντ', 1.92, '1996-10-03'),
  (219, 2, 19, 8, 'Hale', 'Χέιλ', 'Reece', 'Ρις', 'Forward', 'Φόργουορντ', 1.99, '1998-03-25'),
  (224, 2, 24, 9, 'Ferris', 'Φέρις', 'Noel', 'Νόελ', 'Forward', 'Φόργουορντ', 2.01, '2006-08-14'),
  (230, 2, 30, 10, 'Quill', 'Κουίλ', 'Amos', 'Έιμος', 'Centre', 'Σέντερ', 2.06, '2002-02-25'),
  (244, 2, 44, 11, 'Renn', 'Ρεν', 'Viktor', 'Βίκτορ', 'Centre', 'Σέντερ', 2.12, '2004-06-11');

-- home_q1 … away_q4: points of each quarter; null for one that has not been played.
create table game (
  game_id integer primary key,
  home_id integer not null references team (team_id),
  away_id integer not null references team (team_id),
  played datetime,
  competition_en varchar(60), competition_gr varchar(60),
  round_en varchar(40), round_gr varchar(40),
  venue_en varchar(60), venue_gr varchar(60),
  referees_en varchar(90), referees_gr varchar(90),
  home_score integer, away_score integer,
  home_q1 integer, home_q2 integer, home_q3 integer, home_q4 integer,
  away_q1 integer, away_q2 integer, away_q3 integer, away_q4 integer
);
insert into game values
  (1, 2, 1, '2026-04-11 18:00:00', 'Coastal League', 'Παράκτιο Πρωτάθλημα', 'Round 20', '20ή αγωνιστική',
   'Northfield Hall', 'Κλειστό Βορείου', 'Sander, Ruiz, Tolis', 'Σάντερ, Ρουίθ, Τόλης',
   81, 85, 19, 22, 17, 23, 24, 20, 21, 20),
  (2, 1, 2, '2026-11-21 20:30:00', 'Coastal League', 'Παράκτιο Πρωτάθλημα', 'Round 7', '7η αγωνιστική',
   'Harbour Arena', 'Στάδιο Λιμανιού', 'Cole, Manning, Ruiz', 'Κόουλ, Μάνινγκ, Ρουίθ',
   78, 74, 21, 18, 20, 19, 17, 22, 18, 17),
  (3, 2, 1, '2026-12-05 18:00:00', 'Coastal League', 'Παράκτιο Πρωτάθλημα', 'Round 9', '9η αγωνιστική',
   'Northfield Hall', 'Κλειστό Βορείου', null, null,
   null, null, null, null, null, null, null, null, null, null);

create table statistics (
  game_id integer not null references game (game_id),
  player_id integer not null references player (player_id),
  minutes integer, points integer, rebounds integer, assists integer, fouls integer,
  primary key (game_id, player_id)
);
insert into statistics values
  (1, 104, 34, 16, 2, 6, 3),
  (1, 111, 28, 10, 3, 5, 2),
  (1, 118, 30, 15, 5, 1, 3),
  (1, 125, 27, 12, 7, 2, 2),
  (1, 132, 29, 14, 8, 0, 4),
  (1, 139, 14, 6, 3, 1, 2),
  (1, 106, 22, 8, 2, 3, 1),
  (1, 113, 16, 4, 4, 0, 2),
  (1, 120, 0, 0, 0, 0, 0),
  (1, 127, 0, 0, 0, 0, 0),
  (1, 134, 0, 0, 0, 0, 0),
  (1, 141, 0, 0, 0, 0, 0),
  (1, 205, 33, 12, 3, 7, 2),
  (1, 210, 29, 14, 2, 4, 3),
  (1, 214, 30, 11, 6, 2, 2),
  (1, 221, 27, 9, 5, 1, 3),
  (1, 233, 28, 13, 10, 0, 4),
  (1, 240, 12, 4, 3, 0, 1),
  (1, 207, 16, 6, 1, 2, 2),
  (1, 212, 25, 12, 2, 3, 1),
  (1, 219, 0, 0, 0, 0, 0),
  (1, 224, 0, 0, 0, 0, 0),
  (1, 230, 0, 0, 0, 0, 0),
  (1, 244, 0, 0, 0, 0, 0),
  (2, 104, 33, 14, 3, 7, 2),
  (2, 111, 29, 12, 2, 4, 3),
  (2, 118, 31, 18, 6, 2, 2),
  (2, 125, 27, 9, 5, 1, 4),
  (2, 132, 28, 11, 9, 1, 3),
  (2, 139, 12, 2, 4, 0, 2),
  (2, 106, 14, 5, 1, 2, 1),
  (2, 113, 12, 4, 3, 0, 2),
  (2, 120, 8, 3, 1, 0, 0),
  (2, 127, 4, 0, 0, 1, 1),
  (2, 134, 2, 0, 1, 0, 0),
  (2, 141, 0, 0, 0, 0, 0),
  (2, 205, 32, 11, 2, 8, 3),
  (2, 210, 28, 9, 3, 3, 2),
  (2, 214, 30, 13, 5, 2, 3),
  (2, 221, 26, 8, 6, 1, 2),
  (2, 233, 29, 10, 8, 1, 4),
  (2, 240, 11, 2, 3, 0, 3),
  (2, 207, 10, 4, 1, 1, 0),
  (2, 212, 19, 17, 2, 1, 2),
  (2, 219, 9, 0, 2, 1, 1),
  (2, 224, 6, 0, 1, 0, 0),
  (2, 230, 0, 0, 0, 0, 0),
  (2, 244, 0, 0, 0, 0, 0);

-- What a statistics card can show: a column of the table above.
create table statistic_kind (
  kind_id integer primary key,
  column_name varchar(20),
  name_en varchar(40), name_gr varchar(40)
);
insert into statistic_kind values
  (1, 'points', 'Points', 'Πόντοι'),
  (2, 'rebounds', 'Rebounds', 'Ριμπάουντ'),
  (3, 'assists', 'Assists', 'Ασίστ'),
  (4, 'fouls', 'Fouls', 'Φάουλ'),
  (5, 'minutes', 'Minutes', 'Λεπτά');

-- Cards that the system proposes to the operator. pc_card is run with the automatic answers of pc_tag.
create table proposedcard (
  pc_id integer primary key,
  pc_used varchar(1) not null default 'N', -- 'Y' once it was used
  pc_card varchar(60),
  pc_tag varchar(60),
  pc_caption_en varchar(60), pc_caption_gr varchar(60)
);
insert into proposedcard values
  (1, 'N', 'player.csp', 'T:1##P:132', 'Karas[VBCRLF]11 points 9 rebounds', 'Καράς[VBCRLF]11 πόντοι 9 ριμπάουντ'),
  (2, 'N', 'player.csp', 'T:2##P:212', 'Dorn[VBCRLF]17 from the bench', 'Ντορν[VBCRLF]17 από τον πάγκο'),
  (3, 'N', 'coach.csp', 'T:1', 'Andreou[VBCRLF]coach', 'Ανδρέου[VBCRLF]προπονητής'),
  (4, 'N', 'statistics.csp', 'T:1##P:118', 'Vance[VBCRLF]top scorer', 'Βανς[VBCRLF]πρώτος σκόρερ'),
  (5, 'N', 'duel.csp', 'P:104##O:205', 'Laskaris – Whitlock[VBCRLF]head to head', 'Λάσκαρης – Γουίτλοκ[VBCRLF]μονομαχία');
