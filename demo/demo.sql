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
  (1, 104, 8, 13, 9, 5, 4),
  (1, 111, 6, 5, 3, 1, 4),
  (1, 118, 6, 5, 8, 1, 0),
  (1, 125, 18, 3, 0, 3, 3),
  (1, 132, 24, 10, 4, 2, 4),
  (1, 139, 7, 12, 1, 3, 3),
  (1, 106, 1, 4, 0, 0, 3),
  (1, 113, 14, 7, 0, 1, 3),
  (1, 120, 12, 0, 10, 0, 3),
  (1, 127, 22, 7, 0, 3, 0),
  (1, 134, 38, 6, 2, 3, 3),
  (1, 141, 31, 13, 3, 0, 3),
  (1, 205, 34, 7, 6, 5, 1),
  (1, 210, 13, 1, 1, 2, 3),
  (1, 214, 31, 4, 2, 1, 1),
  (1, 221, 7, 3, 2, 0, 1),
  (1, 233, 3, 9, 0, 3, 4),
  (1, 240, 14, 1, 9, 0, 3),
  (1, 207, 12, 0, 11, 2, 2),
  (1, 212, 18, 3, 3, 3, 0),
  (1, 219, 17, 2, 3, 2, 0),
  (1, 224, 25, 10, 0, 0, 2),
  (1, 230, 23, 1, 0, 1, 3),
  (1, 244, 3, 40, 2, 0, 2),
  (2, 104, 38, 8, 5, 5, 0),
  (2, 111, 2, 8, 3, 2, 2),
  (2, 118, 14, 3, 4, 0, 1),
  (2, 125, 0, 13, 0, 0, 2),
  (2, 132, 26, 11, 3, 4, 4),
  (2, 139, 22, 3, 5, 0, 1),
  (2, 106, 1, 18, 4, 2, 4),
  (2, 113, 23, 0, 3, 1, 2),
  (2, 120, 2, 0, 1, 2, 2),
  (2, 127, 36, 5, 0, 2, 4),
  (2, 134, 3, 3, 4, 2, 3),
  (2, 141, 30, 6, 1, 1, 1),
  (2, 205, 14, 5, 8, 6, 0),
  (2, 210, 11, 7, 5, 0, 3),
  (2, 214, 9, 10, 0, 1, 3),
  (2, 221, 28, 6, 0, 1, 2),
  (2, 233, 17, 9, 3, 1, 0),
  (2, 240, 25, 4, 0, 1, 1),
  (2, 207, 28, 9, 0, 2, 3),
  (2, 212, 4, 10, 4, 0, 0),
  (2, 219, 12, 0, 2, 1, 1),
  (2, 224, 28, 0, 2, 0, 2),
  (2, 230, 23, 4, 5, 1, 0),
  (2, 244, 1, 10, 6, 1, 1);

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
  (1, 'N', 'player.csp', 'T:1##P:132', 'Karas[VBCRLF]2.11 m', 'Καράς[VBCRLF]2,11 μ.'),
  (2, 'N', 'player.csp', 'T:2##P:212', 'Dorn[VBCRLF]top scorer', 'Ντορν[VBCRLF]πρώτος σκόρερ'),
  (3, 'N', 'coach.csp', 'T:1', 'Andreou[VBCRLF]coach', 'Ανδρέου[VBCRLF]προπονητής'),
  (4, 'N', 'player.csp', 'T:1##P:118', 'Vance[VBCRLF]forward', 'Βανς[VBCRLF]φόργουορντ');
