-- The store of Quiver-Deck, one file: splash.ps.
--
-- Declared types tell the program how to read a column: INTEGER (32 bits), BYTE (8 bits, unsigned), REAL,
-- BOOLEAN (stored 0 or 1), DATE and TEXT. TEXT alone keeps leading zeros ("001010100"). The store accepts what the
-- type cannot hold (300 in a BYTE, a Null where none belongs): the program raises its own error on reading it.
--
-- Table and column names are matched without regard to case; texts are compared exactly.
-- There are no foreign keys: a card may carry category 0, and an athlete is deleted before the cards.
-- Automatic keys are AUTOINCREMENT, so that a key is never handed out twice.

PRAGMA user_version = 1;

CREATE TABLE utenti (
    id_utente   INTEGER PRIMARY KEY AUTOINCREMENT,
    nome        TEXT,
    cognome     TEXT,
    dataNascita DATE,
    sesso       TEXT,
    Note        TEXT
);

CREATE TABLE schede (
    id_scheda  INTEGER PRIMARY KEY AUTOINCREMENT,
    id_utente  INTEGER,
    Istruttore TEXT,
    PeriodoDal DATE,
    PeriodoAl  DATE,
    id_cat     INTEGER,
    FreqAllen  BYTE,
    GGAllen    TEXT,
    Obiettivo  TEXT,
    note       TEXT
);

CREATE TABLE Esercizi (
    ct          INTEGER PRIMARY KEY AUTOINCREMENT,
    NProg       INTEGER,
    ID_Scheda   INTEGER,
    ID_Fig      INTEGER,
    Durata      TEXT,
    Frequenza   TEXT,
    Ampiezza    TEXT,
    RecuperoMin BYTE,
    RecuperoSec BYTE,
    Serie       BYTE,
    Modalita    TEXT,
    Peso        TEXT,
    isLibero    BOOLEAN,
    Note        TEXT
);

CREATE TABLE schedeModello (
    id_Scheda    INTEGER PRIMARY KEY AUTOINCREMENT,
    id_cat       INTEGER,
    descrizione  TEXT,
    preimpostata BOOLEAN,
    note         TEXT
);

CREATE TABLE EserciziModello (
    ct          INTEGER PRIMARY KEY AUTOINCREMENT,
    NProg       INTEGER,
    ID_Scheda   INTEGER,
    ID_Fig      INTEGER,
    Durata      TEXT,
    Frequenza   TEXT,
    Ampiezza    TEXT,
    RecuperoMin BYTE,
    RecuperoSec BYTE,
    Serie       BYTE,
    Modalita    TEXT,
    Peso        TEXT,
    isLibero    BOOLEAN,
    Note        TEXT
);

CREATE TABLE categorie (
    id_cat INTEGER PRIMARY KEY,
    nome   TEXT
);

CREATE TABLE figure (
    id_fig INTEGER PRIMARY KEY,
    ID_MAC TEXT,
    numero REAL,
    figura TEXT
);

CREATE TABLE muscoli (
    id_muscolo  TEXT PRIMARY KEY,
    nome        TEXT,
    nomeMuscolo TEXT
);

-- Which groups a figure trains; seen by the program through vw_figure_muscoli alone.
CREATE TABLE figure_muscoli (
    id_fig     INTEGER,
    id_muscolo TEXT,
    PRIMARY KEY (id_fig, id_muscolo)
) WITHOUT ROWID;

CREATE TABLE Macchinari (
    ID_MAC   TEXT PRIMARY KEY,
    Caricata BOOLEAN
);

CREATE TABLE palestra (
    nome         TEXT,
    responsabile TEXT,
    logo         TEXT
);

CREATE TABLE Parametri (
    parametro TEXT PRIMARY KEY,
    valore    TEXT
);

CREATE INDEX ix_schede_utente ON schede (id_utente);
CREATE INDEX ix_Esercizi_scheda ON Esercizi (ID_Scheda, NProg);
CREATE INDEX ix_EserciziModello_scheda ON EserciziModello (ID_Scheda, NProg);
CREATE INDEX ix_figure_macchina ON figure (ID_MAC, numero);

-- A deleted card or template takes its exercises along.
CREATE TRIGGER tr_schede_elimina AFTER DELETE ON schede
BEGIN
    DELETE FROM Esercizi WHERE ID_Scheda = OLD.id_scheda;
END;

CREATE TRIGGER tr_schedeModello_elimina AFTER DELETE ON schedeModello
BEGIN
    DELETE FROM EserciziModello WHERE ID_Scheda = OLD.id_Scheda;
END;

-- Joined columns of one name keep their table's name; the keys that the join makes equal stand once.
CREATE VIEW vw_schedacompleta AS
SELECT s.id_scheda  AS id_scheda,
       s.id_utente  AS id_utente,
       s.Istruttore AS Istruttore,
       s.PeriodoDal AS PeriodoDal,
       s.PeriodoAl  AS PeriodoAl,
       s.id_cat     AS id_cat,
       s.FreqAllen  AS FreqAllen,
       s.GGAllen    AS GGAllen,
       s.Obiettivo  AS Obiettivo,
       s.note       AS "schede.note",
       c.nome       AS "categorie.nome",
       u.nome       AS "utenti.nome",
       u.cognome    AS cognome,
       u.dataNascita AS dataNascita,
       u.sesso      AS sesso,
       u.Note       AS "utenti.note"
FROM schede s
INNER JOIN categorie c ON c.id_cat = s.id_cat
INNER JOIN utenti u ON u.id_utente = s.id_utente;

CREATE VIEW vw_schedaModellocompleta AS
SELECT m.id_Scheda    AS id_Scheda,
       m.id_cat       AS id_cat,
       c.nome         AS nome,
       m.descrizione  AS descrizione,
       m.preimpostata AS preimpostata,
       m.note         AS note
FROM schedeModello m
INNER JOIN categorie c ON c.id_cat = m.id_cat;

CREATE VIEW vw_figure_muscoli AS
SELECT f.id_fig     AS id_fig,
       f.ID_MAC     AS ID_MAC,
       f.numero     AS numero,
       f.figura     AS figura,
       m.id_muscolo AS id_muscolo,
       m.nome       AS nome
FROM figure f
INNER JOIN figure_muscoli l ON l.id_fig = f.id_fig
INNER JOIN muscoli m ON m.id_muscolo = l.id_muscolo;
