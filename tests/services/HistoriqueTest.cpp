// The player's history: a game's record written and taken up again, and the files it
// must not trust: damaged (set aside, a new one begun), too new or locked (left alone).
#include "services/Historique.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#include <gtest/gtest.h>

namespace {

// What a separate connection reads in the file: one line per row of the query.
QStringList Lignes(const QString &chemin, const QString &requête)
{
    QStringList lignes;
    {
        QSqlDatabase base = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("lecture"));
        base.setDatabaseName(chemin);
        QSqlQuery q(base);
        if (base.open() && q.exec(requête))
            while (q.next()) {
                QStringList champs;
                for (int i = 0; i < q.record().count(); ++i)
                    champs << q.value(i).toString();
                lignes << champs.join(QLatin1Char(' '));
            }
    }
    QSqlDatabase::removeDatabase(QStringLiteral("lecture"));
    return lignes;
}

TEST(Historique, AGameIsRecordedStepByStepAndASavedGameIsTakenUpInItsRecord)
{
    QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("historique.sqlite"));
    ASSERT_EQ(OuvreHistorique(chemin), TOuvertureHistorique::Ouvert);
    const qint64 id = CommencePartieHistorique({"Zoé", TNiveau::Moyen, false, "KELMOR.SCS", QDateTime(QDate(2026, 11, 23), QTime(10, 0))});
    ASSERT_GT(id, 0);
    EXPECT_TRUE(EnregistreHistorique(id, {{4, TEtape::Cantons, 2, false, false, 7}, {9, TEtape::Cantons, 9, false, true, 30}},
                                     TIssuePartie::EnCours, 900000, 37));
    EXPECT_TRUE(EnregistreHistorique(id, {{3, TEtape::ChefsLieux, 0, true, false, 5}}, TIssuePartie::Enregistrée, 800000, 42,
                                     "/parties/essai.CAS"));
    EXPECT_EQ(PartieEnregistréeDans("/parties/essai.CAS"), id);
    EXPECT_EQ(PartieEnregistréeDans("/parties/autre.CAS"), 0);
    EXPECT_FALSE(EnregistreHistorique(id + 1, {{1, TEtape::Cantons, 0, false, false, 1}}, TIssuePartie::Gagnée, 1, 1))
        << "no record of that game: nothing is written";
    // What each canton cost: over Zoé's games only, all of them or the last one.
    const qint64 autre = CommencePartieHistorique({"Ana", TNiveau::Moyen, false, "mon;jeu \"A\".SCS", {}});
    const qint64 suivante = CommencePartieHistorique({"Zoé", TNiveau::Moyen, false, "KELMOR.SCS", {}});
    EnregistreHistorique(autre, {{4, TEtape::Cantons, 5, false, false, 1}}, TIssuePartie::Perdue, 1, 1);
    EnregistreHistorique(suivante, {{4, TEtape::Cantons, 0, false, false, 2}}, TIssuePartie::Gagnée, 1, 1);
    const auto bilan = [](const TBilanCanton &b) { return std::array{b.Questions, b.Erreurs, b.Manquées}; };
    const TBilan tout = BilanErreurs("Zoé", 0), dernière = BilanErreurs("Zoé", 1);
    EXPECT_TRUE(bilan(tout[1][4]) == (std::array{2, 2, 1}) && bilan(tout[1][9]) == (std::array{1, 9, 1}) &&
                bilan(tout[2][3]) == (std::array{1, 0, 1}) && bilan(dernière[1][4]) == (std::array{1, 0, 0}) && dernière[1][9].Questions == 0);
    // For a spreadsheet: a line per question, a field with the separator or a quote quoted.
    const QStringList zoé = QString::fromUtf8(HistoriqueCSV("Zoé")).split("\r\n"), ana = QString::fromUtf8(HistoriqueCSV("Ana")).split("\r\n");
    EXPECT_TRUE(zoé.size() == 6 && HistoriqueCSV("Zoé").startsWith("\xEF\xBB\xBFpartie;debut;")) << zoé.join("/").toStdString();
    EXPECT_EQ(zoé.value(1), "1;2026-11-23T10:00:00;2;0;KELMOR.SCS;4;800000;42;4;1;2;0;0;7");
    EXPECT_EQ(ana.value(1), "2;;2;0;\"mon;jeu \"\"A\"\".SCS\";2;1;1;4;1;5;0;0;1");
    FermeHistorique();
    EXPECT_EQ(Lignes(chemin, "SELECT joueur, niveau, parametrage, debut, duree, score, issue, fichier FROM parties WHERE id = 1"),
              QStringList({"Zoé 2 KELMOR.SCS 2026-11-23T10:00:00 42 800000 4 /parties/essai.CAS"}));
    EXPECT_EQ(Lignes(chemin, "SELECT canton, etape, erreurs, passee, assistee, secondes FROM questions WHERE partie = 1 ORDER BY id"),
              QStringList({"4 1 2 0 0 7", "9 1 9 0 1 30", "3 2 0 1 0 5"}));
    EXPECT_EQ(Lignes(chemin, "PRAGMA user_version"), QStringList({QString::number(VersionHistorique)}));
    EXPECT_EQ(Lignes(chemin, "PRAGMA journal_mode"), QStringList({"wal"}));
}

TEST(Historique, ADamagedFileIsSetAsideATooNewOrLockedOneIsLeftAlone)
{
    QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("historique.sqlite"));
    const QByteArray abîmé = QByteArray("SQLite format 3").append(QByteArray(4000, '\x5A'));
    QFile f(chemin);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(abîmé) == abîmé.size());
    f.close();
    QString détail;
    ASSERT_EQ(OuvreHistorique(chemin, &détail), TOuvertureHistorique::MisDeCôté);
    QFile àCôté(détail);
    EXPECT_TRUE(détail.startsWith(chemin + ".abime-") && àCôté.open(QIODevice::ReadOnly) && àCôté.readAll() == abîmé);
    EXPECT_GT(CommencePartieHistorique({"Ana", TNiveau::Facile, true, "KELMOR.SCS", QDateTime::currentDateTime()}), 0);
    FermeHistorique();

    // Written by a later version of the game: neither read nor changed.
    Lignes(chemin, "PRAGMA user_version = 99");
    const QStringList avant = Lignes(chemin, "SELECT count(*) FROM parties");
    EXPECT_EQ(OuvreHistorique(chemin, &détail), TOuvertureHistorique::Inaccessible);
    EXPECT_TRUE(!HistoriqueOuvert() && Lignes(chemin, "SELECT count(*) FROM parties") == avant && !QFile::exists(détail));
    Lignes(chemin, QStringLiteral("PRAGMA user_version = %1").arg(VersionHistorique));

    // Another program holds the file: after a wait, the game goes on without history.
    QSqlDatabase autre = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("autre"));
    autre.setDatabaseName(chemin);
    ASSERT_TRUE(autre.open());
    QSqlQuery(autre).exec(QStringLiteral("PRAGMA journal_mode=DELETE"));
    ASSERT_TRUE(QSqlQuery(autre).exec(QStringLiteral("BEGIN EXCLUSIVE")));
    EXPECT_EQ(OuvreHistorique(chemin), TOuvertureHistorique::Inaccessible);
    EXPECT_TRUE(QFile::exists(chemin));
    QSqlQuery(autre).exec(QStringLiteral("ROLLBACK"));
    autre.close();
    autre = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("autre"));
    EXPECT_EQ(OuvreHistorique(chemin), TOuvertureHistorique::Ouvert);
    FermeHistorique();
}

} // namespace

namespace {

// A writer killed at any moment leaves whole steps only: each transaction holds a step's 26 questions.
TEST(Historique, AWriterKilledAtAnyMomentLeavesNoHalfWrittenStep)
{
    QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("historique.sqlite"));
    std::vector<TQuestionJouée> étape;
    for (i16 c = 1; c <= NombrePlaces; ++c)
        étape.push_back({c, TEtape::Cantons, 1, false, false, 3});
    for (int délai : {250, 40, 410}) { // the first long enough for a step to be written
        FermeHistorique();
        const pid_t écrivain = fork();
        ASSERT_GE(écrivain, 0);
        if (écrivain == 0) { // the child writes game after game until it is killed
            OuvreHistorique(chemin);
            for (;;)
                EnregistreHistorique(CommencePartieHistorique({"Zoé", TNiveau::Moyen, false, "KELMOR.SCS", {}}), étape,
                                     TIssuePartie::EnCours, 1, 1);
        }
        QThread::msleep(délai);
        kill(écrivain, SIGKILL);
        waitpid(écrivain, nullptr, 0);
        ASSERT_EQ(OuvreHistorique(chemin), TOuvertureHistorique::Ouvert) << délai;
        FermeHistorique();
        EXPECT_EQ(Lignes(chemin, "PRAGMA integrity_check"), QStringList({"ok"}));
        EXPECT_EQ(Lignes(chemin, "SELECT DISTINCT count(*) FROM questions GROUP BY partie"), QStringList({"26"})) << délai << " ms";
    }
}

} // namespace

TEST(Historique, ProgressShowsTheEndedGamesOfOneLevelAndSetAndTheirStreaks)
{
    QTemporaryDir dossier;
    ASSERT_EQ(OuvreHistorique(dossier.filePath(QStringLiteral("historique.sqlite"))), TOuvertureHistorique::Ouvert);
    using I = TIssuePartie;
    const QDate j0(2026, 11, 20);
    const struct { TNiveau niveau; bool apprentissage; const char *set; I issue; int jour; } parties[] = {
        {TNiveau::Moyen, false, "K.SCS", I::Gagnée, 0},   {TNiveau::Moyen, false, "K.SCS", I::Perdue, 1},
        {TNiveau::Moyen, true, "K.SCS", I::Gagnée, 1},    {TNiveau::Facile, false, "K.SCS", I::Gagnée, 2},
        {TNiveau::Moyen, false, "~tmp.~cf", I::Gagnée, 2}, {TNiveau::Moyen, false, "K.SCS", I::EnCours, 2},
        {TNiveau::Moyen, false, "K.SCS", I::Abandonnée, 3}, {TNiveau::Moyen, false, "K.SCS", I::Gagnée, 3}};
    for (int i = 0; i < 8; ++i) {
        const auto &p = parties[i];
        const qint64 id = CommencePartieHistorique({"Zoé", p.niveau, p.apprentissage, p.set, QDateTime(j0.addDays(p.jour), QTime(9, i))});
        EnregistreHistorique(id, {}, p.issue, 100 * i, 60 * i);
    }
    const std::vector<TPartieFinie> fins = PartiesFinies("Zoé", TNiveau::Moyen, "K.SCS");
    ASSERT_EQ(fins.size(), 4u) << "learning, another level, another set and a game under way left out";
    const int scores[] = {0, 100, 600, 700};
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(fins[i].Score == scores[i] && fins[i].Durée == 60 * scores[i] / 100 && fins[i].Début.date() == j0.addDays(i < 2 ? i : 3)) << i;
    EXPECT_TRUE(fins[2].Issue == I::Abandonnée && PartiesFinies("Ana", TNiveau::Moyen, "K.SCS").empty());
    FermeHistorique();

    // Streaks: games won in a row, days played in a row up to today or yesterday; each with its record.
    const struct { std::vector<std::pair<I, int>> jeu; int aujourdhui; std::array<int, 4> attendu; } cas[] = {
        {{}, 0, {0, 0, 0, 0}},
        {{{I::Gagnée, 0}, {I::Gagnée, 0}, {I::Perdue, 1}, {I::Gagnée, 3}, {I::Gagnée, 3}, {I::Gagnée, 4}}, 4, {3, 3, 2, 2}},
        {{{I::Gagnée, 0}, {I::Gagnée, 1}, {I::Gagnée, 2}, {I::Abandonnée, 2}, {I::Gagnée, 5}}, 6, {1, 3, 1, 3}},
        {{{I::Gagnée, 0}, {I::Perdue, 1}}, 9, {0, 1, 0, 2}},
    };
    for (const auto &c : cas) {
        std::vector<TPartieFinie> jeu;
        for (auto [issue, jour] : c.jeu)
            jeu.push_back({QDateTime(j0.addDays(jour), QTime(20, 0)), 0, 0, issue});
        const TSéries s = Séries(jeu, j0.addDays(c.aujourdhui));
        EXPECT_EQ((std::array{s.Gagnées, s.GagnéesRecord, s.Jours, s.JoursRecord}), c.attendu) << c.jeu.size();
    }
}
