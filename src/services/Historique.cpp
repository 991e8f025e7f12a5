#include "services/Historique.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {
const QString Connexion = QStringLiteral("historique");
// Each opening and each game's notes written count one: what a form read may be stale since.
int écritures = 0;

// Each step brings the tables from the version before it to its own.
const char *const Migrations[VersionHistorique] = {
    "CREATE TABLE parties (id INTEGER PRIMARY KEY, joueur TEXT NOT NULL, niveau INTEGER NOT NULL,"
    " apprentissage INTEGER NOT NULL, parametrage TEXT NOT NULL, debut TEXT NOT NULL, duree INTEGER NOT NULL DEFAULT 0,"
    " score INTEGER NOT NULL DEFAULT 0, issue INTEGER NOT NULL DEFAULT 0, fichier TEXT NOT NULL DEFAULT '');"
    "CREATE TABLE questions (id INTEGER PRIMARY KEY, partie INTEGER NOT NULL REFERENCES parties(id), canton INTEGER NOT NULL,"
    " etape INTEGER NOT NULL, erreurs INTEGER NOT NULL, passee INTEGER NOT NULL, assistee INTEGER NOT NULL,"
    " secondes INTEGER NOT NULL);"
    "CREATE INDEX questions_partie ON questions(partie);"
    "CREATE INDEX parties_joueur ON parties(joueur, id);",
    // 2: each player's figures over all their games, kept as questions are written.
    "CREATE TABLE bilans (joueur TEXT NOT NULL, etape INTEGER NOT NULL, canton INTEGER NOT NULL, questions INTEGER NOT NULL,"
    " erreurs INTEGER NOT NULL, manquees INTEGER NOT NULL, PRIMARY KEY (joueur, etape, canton));"
    "INSERT INTO bilans SELECT p.joueur, q.etape, q.canton, count(*), sum(q.erreurs), sum(q.erreurs > 0 OR q.passee)"
    " FROM questions q JOIN parties p ON p.id = q.partie GROUP BY p.joueur, q.etape, q.canton;",
};

QSqlDatabase Base() { return QSqlDatabase::database(Connexion, false); }

// A text as the tables keep it: never NULL, an absent one is empty.
QVariant Texte(const QString &s) { return s.isNull() ? QVariant(QStringLiteral("")) : QVariant(s); }

// SQLite's own codes: a file that isn't a database, or a damaged one.
bool Abîmé(const QSqlError &e)
{
    const QString code = e.nativeErrorCode();
    return code == QLatin1String("26") || code == QLatin1String("11");
}

// Opens the file and brings its tables up to date; the error that stopped it, if any.
QSqlError Prépare(const QString &chemin)
{
    // Every opening begins from a closed history (OuvreHistorique closes it first).
    QSqlDatabase base = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), Connexion);
    base.setDatabaseName(chemin);
    base.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=2000"));
    if (!base.open())
        return base.lastError();
    QSqlQuery q(base);
    if (!q.exec(QStringLiteral("PRAGMA user_version")) || !q.next())
        return q.lastError();
    const int version = q.value(0).toInt();
    if (version > VersionHistorique)
        return QSqlError(QStringLiteral("version %1").arg(version), QString(), QSqlError::UnknownError);
    if (!q.exec(QStringLiteral("PRAGMA journal_mode=WAL")))
        return q.lastError();
    for (int v = version; v < VersionHistorique; ++v) {
        if (!base.transaction())
            return base.lastError();
        for (const QString &ordre : QString::fromUtf8(Migrations[v]).split(QLatin1Char(';'), Qt::SkipEmptyParts))
            if (!q.exec(ordre)) {
                const QSqlError e = q.lastError();
                base.rollback();
                return e;
            }
        if (!q.exec(QStringLiteral("PRAGMA user_version = %1").arg(v + 1)) || !base.commit()) {
            const QSqlError e = q.lastError().isValid() ? q.lastError() : base.lastError();
            base.rollback();
            return e;
        }
    }
    return {};
}
} // namespace

TOuvertureHistorique OuvreHistorique(const QString &chemin, QString *détail)
{
    ++écritures;
    FermeHistorique();
    QSqlError e = Prépare(chemin);
    if (!e.isValid())
        return TOuvertureHistorique::Ouvert;
    if (Abîmé(e) && QFileInfo(chemin).isFile()) {
        FermeHistorique();
        const QString àCôté = chemin + QStringLiteral(".abime-") +
                              QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
        // The journal and the shared memory go with the file they belong to.
        for (const QString &suffixe : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
            if (QFile::exists(chemin + suffixe))
                QFile::rename(chemin + suffixe, àCôté + suffixe);
        if (!QFile::exists(chemin) && !(e = Prépare(chemin)).isValid()) {
            if (détail)
                *détail = àCôté;
            return TOuvertureHistorique::MisDeCôté;
        }
    }
    FermeHistorique();
    if (détail)
        *détail = e.text();
    return TOuvertureHistorique::Inaccessible;
}

void FermeHistorique()
{
    if (!QSqlDatabase::contains(Connexion))
        return;
    Base().close();
    QSqlDatabase::removeDatabase(Connexion);
}

QString SourceHistorique(const QString &joueur)
{
    return QStringLiteral("%1|%2|%3").arg(HistoriqueOuvert() ? Base().databaseName() : QString()).arg(écritures).arg(joueur);
}

bool HistoriqueOuvert() { return QSqlDatabase::contains(Connexion) && Base().isOpen(); }

qint64 CommencePartieHistorique(const TPartieJouée &partie)
{
    if (!HistoriqueOuvert())
        return 0;
    QSqlQuery q(Base());
    q.prepare(QStringLiteral("INSERT INTO parties (joueur, niveau, apprentissage, parametrage, debut) VALUES (?, ?, ?, ?, ?)"));
    q.addBindValue(Texte(partie.Joueur));
    q.addBindValue(Numéro(partie.Niveau));
    q.addBindValue(partie.Apprentissage);
    q.addBindValue(Texte(partie.Paramétrage));
    q.addBindValue(Texte(partie.Début.toString(Qt::ISODate)));
    return q.exec() ? q.lastInsertId().toLongLong() : 0;
}

bool EnregistreHistorique(qint64 partie, const std::vector<TQuestionJouée> &questions, TIssuePartie issue, i32 score,
                          i32 durée, const QString &fichierPartie)
{
    if (partie == 0 || !HistoriqueOuvert())
        return false;
    QSqlDatabase base = Base();
    if (!base.transaction())
        return false;
    QSqlQuery q(base);
    q.prepare(QStringLiteral("INSERT INTO questions (partie, canton, etape, erreurs, passee, assistee, secondes)"
                             " VALUES (?, ?, ?, ?, ?, ?, ?)"));
    QSqlQuery b(base);
    b.prepare(QStringLiteral("INSERT INTO bilans SELECT joueur, ?, ?, 1, ?, ? FROM parties WHERE id = ?"
                             " ON CONFLICT (joueur, etape, canton) DO UPDATE SET questions = questions + 1,"
                             " erreurs = erreurs + excluded.erreurs, manquees = manquees + excluded.manquees"));
    bool fait = true;
    for (const TQuestionJouée &j : questions) {
        int i = 0;
        for (const QVariant &v : {QVariant(partie), QVariant(j.Canton), QVariant(Numéro(j.Etape)), QVariant(j.Erreurs),
                                  QVariant(j.Passée), QVariant(j.Assistée), QVariant(j.Secondes)})
            q.bindValue(i++, v);
        i = 0;
        for (const QVariant &v : {QVariant(Numéro(j.Etape)), QVariant(j.Canton), QVariant(j.Erreurs),
                                  QVariant(j.Erreurs > 0 || j.Passée), QVariant(partie)})
            b.bindValue(i++, v);
        fait = fait && q.exec() && b.exec();
    }
    QSqlQuery p(base);
    p.prepare(QStringLiteral("UPDATE parties SET issue = ?, score = ?, duree = ?, fichier = ? WHERE id = ?"));
    for (const QVariant &v : {QVariant(int(issue)), QVariant(score), QVariant(durée), Texte(fichierPartie), QVariant(partie)})
        p.addBindValue(v);
    fait = fait && p.exec() && p.numRowsAffected() == 1;
    if (fait && base.commit())
        return ++écritures, true;
    base.rollback();
    return false;
}

TBilan BilanErreurs(const QString &joueur, int parties)
{
    TBilan bilan{};
    if (!HistoriqueOuvert())
        return bilan;
    QSqlQuery q(Base());
    if (parties > 0) {
        q.prepare(QStringLiteral("SELECT etape, canton, count(*), sum(erreurs), sum(erreurs > 0 OR passee) FROM questions"
                                 " WHERE partie IN (SELECT id FROM parties WHERE joueur = ? ORDER BY id DESC LIMIT ?)"
                                 " GROUP BY etape, canton"));
        q.addBindValue(Texte(joueur));
        q.addBindValue(parties);
    } else {
        q.prepare(QStringLiteral("SELECT etape, canton, questions, erreurs, manquees FROM bilans WHERE joueur = ?"));
        q.addBindValue(Texte(joueur));
    }
    if (!q.exec())
        return bilan;
    while (q.next()) {
        const int étape = q.value(0).toInt(), canton = q.value(1).toInt();
        // A damaged or hand-made row outside the tables is passed over.
        if (étape >= 1 && étape <= 4 && canton >= 1 && canton <= NombrePlaces)
            bilan[étape][canton] = {q.value(2).toInt(), q.value(3).toInt(), q.value(4).toInt()};
    }
    return bilan;
}

QByteArray HistoriqueCSV(const QString &joueur)
{
    if (!HistoriqueOuvert())
        return {};
    QSqlQuery q(Base());
    q.prepare(QStringLiteral("SELECT p.id, p.debut, p.niveau, p.apprentissage, p.parametrage, p.issue, p.score, p.duree,"
                             " q.canton, q.etape, q.erreurs, q.passee, q.assistee, q.secondes"
                             " FROM parties p JOIN questions q ON q.partie = p.id WHERE p.joueur = ? ORDER BY q.id"));
    q.addBindValue(Texte(joueur));
    QString texte = QStringLiteral("\uFEFFpartie;debut;niveau;apprentissage;parametrage;issue;score;duree;"
                                   "canton;etape;erreurs;passee;aide;secondes\r\n");
    if (q.exec())
        while (q.next()) {
            QStringList champs;
            for (int i = 0; i < 14; ++i) {
                QString v = q.value(i).toString();
                // A field that holds the separator or a quote is quoted, its quotes doubled.
                if (v.contains(QLatin1Char(';')) || v.contains(QLatin1Char('"')))
                    v = QLatin1Char('"') + v.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
                champs << v;
            }
            texte += champs.join(QLatin1Char(';')) + QStringLiteral("\r\n");
        }
    return texte.toUtf8();
}

std::vector<TPartieFinie> PartiesFinies(const QString &joueur, TNiveau niveau, const QString &paramétrage)
{
    std::vector<TPartieFinie> parties;
    if (!HistoriqueOuvert())
        return parties;
    QSqlQuery q(Base());
    q.prepare(QStringLiteral("SELECT debut, duree, score, issue FROM parties WHERE joueur = ? AND niveau = ?"
                             " AND parametrage = ? AND apprentissage = 0 AND issue IN (?, ?, ?) ORDER BY id"));
    q.addBindValue(Texte(joueur));
    q.addBindValue(Numéro(niveau));
    q.addBindValue(Texte(paramétrage));
    for (TIssuePartie i : {TIssuePartie::Gagnée, TIssuePartie::Perdue, TIssuePartie::Abandonnée})
        q.addBindValue(int(i));
    if (q.exec())
        while (q.next()) {
            // A date that doesn't read (a hand-edited row) can't be placed in time: passed over.
            const QDateTime début = QDateTime::fromString(q.value(0).toString(), Qt::ISODate);
            if (début.isValid())
                parties.push_back({début, q.value(1).toInt(), q.value(2).toInt(), static_cast<TIssuePartie>(q.value(3).toInt())});
        }
    return parties;
}

TNiveau DernierNiveauFini(const QString &joueur, const QString &paramétrage)
{
    if (!HistoriqueOuvert())
        return TNiveau::Aucun;
    QSqlQuery q(Base());
    q.prepare(QStringLiteral("SELECT niveau FROM parties WHERE joueur = ? AND parametrage = ? AND apprentissage = 0"
                             " AND issue IN (?, ?, ?) ORDER BY id DESC LIMIT 1"));
    q.addBindValue(Texte(joueur));
    q.addBindValue(Texte(paramétrage));
    for (TIssuePartie i : {TIssuePartie::Gagnée, TIssuePartie::Perdue, TIssuePartie::Abandonnée})
        q.addBindValue(int(i));
    const int niveau = q.exec() && q.next() ? q.value(0).toInt() : 0;
    return niveau >= 1 && niveau <= 4 ? static_cast<TNiveau>(niveau) : TNiveau::Aucun;
}

TSéries Séries(const std::vector<TPartieFinie> &parties, QDate aujourdhui)
{
    TSéries s;
    std::vector<QDate> jours;
    for (const TPartieFinie &p : parties) {
        s.Gagnées = p.Issue == TIssuePartie::Gagnée ? s.Gagnées + 1 : 0;
        s.GagnéesRecord = std::max(s.GagnéesRecord, s.Gagnées);
        jours.push_back(p.Début.date());
    }
    std::sort(jours.begin(), jours.end());
    jours.erase(std::unique(jours.begin(), jours.end()), jours.end());
    int suite = 0;
    for (std::size_t i = 0; i < jours.size(); ++i) {
        suite = i > 0 && jours[i - 1].addDays(1) == jours[i] ? suite + 1 : 1;
        s.JoursRecord = std::max(s.JoursRecord, suite);
    }
    // The days in a row still go on when the last of them is today or yesterday.
    s.Jours = !jours.empty() && jours.back().daysTo(aujourdhui) <= 1 ? suite : 0;
    return s;
}

qint64 PartieEnregistréeDans(const QString &fichierPartie)
{
    if (!HistoriqueOuvert() || fichierPartie.isEmpty())
        return 0;
    QSqlQuery q(Base());
    q.prepare(QStringLiteral("SELECT id FROM parties WHERE fichier = ? AND issue = ? ORDER BY id DESC LIMIT 1"));
    q.addBindValue(fichierPartie);
    q.addBindValue(int(TIssuePartie::Enregistrée));
    return q.exec() && q.next() ? q.value(0).toLongLong() : 0;
}
