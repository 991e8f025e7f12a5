#pragma once
// What the services' tests share: headers, stored values read back, a store, boxes and a clock of their own.
#include "Fixtures.h"

#include "platform/Ansi.h"
#include "services/MisesAJour.h"
#include "screen/ParametrageRepertoires.h"
#include "services/Registre.h"
#include "services/TableChaines.h"

#include <QAction>

// Texts shown as text when a check fails.
inline void PrintTo(const QString &s, std::ostream *os) { *os << '"' << s.toStdString() << '"'; }

// The stored text, or "<-1>" / "<-2>" as the read answered; a failed read that touched the caller's text says so.
inline QString Valeur(const QString &clé, const QString &nom)
{
    QString texte = QStringLiteral("<unset>");
    const i32 r = LitValeur(clé, nom, texte);
    return r == 0 ? texte : QString(texte == u"<unset>" ? "<%1>" : "<%1, text changed>").arg(r);
}

// A value stored, its key made first.
inline void Pose(const QString &clé, const QString &nom, const QString &texte) { ASSERT_TRUE(CréeClé(clé) == 0 && EcritValeur(clé, nom, texte) == 0); }

// In the folder form the player goes to each folder given in turn and presses OK; past them, the close box.
inline void ChoisiraDossiers(const QStringList &dossiers)
{
    InstalleFormesModales([dossiers, choix = qsizetype(0)](QDialog &forme) mutable {
        auto &f = dynamic_cast<ParamétrageRépertoires &>(forme);
        if (choix < dossiers.size() && f.ChangeRépertoire(dossiers[choix++]))
            f.BoutonOK->click();
        return f.result();
    });
}

// The boxes' messages by id: the longest one that starts the box's text, −1 for none.
inline QList<int> Vues(const BoîtesScriptées &boîtes)
{
    QList<int> vues;
    for (const auto &b : boîtes.journal) {
        vues << -1;
        qsizetype longueur = 0;
        for (int i = 0; i < int(Langues().Messages.size()); ++i)
            if (Langues().Messages[i].size() > longueur && b.texte.startsWith(Langues().Messages[i]))
                vues.back() = i, longueur = Langues().Messages[i].size();
    }
    return vues;
}

// A store in a temporary folder, also the program's, in French; the current folder put back.
class Magasin : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dossier.isValid());
        InstalleFichierRegistre(fichier), InstalleBoîtes(&boîtes), InstalleMaintenant([this] { return maintenant; });
        Réglages().RépertoireApplication = dossier.path(), Langues().Langue = 1, ChargeChaînes();
    }
    void TearDown() override
    {
        QDir::setCurrent(dossierCourant), InstalleFormesModales(nullptr), InstalleMaintenant(nullptr), InstalleBoîtes(nullptr);
        InstalleFichierRegistre(QString()), Langues().Langue = 1, ChargeChaînes();
    }
    // The three folder values stored ("<-2>" when not written), the same in memory, and the current folder.
    QStringList Dossiers() const
    {
        return {Valeur(CléJeu, "répertoire"), Valeur(CléJeu, "fichier de lancement"), Valeur(CléJeu, "répertoire information"),
                Réglages().RépertoireSauvegarde, Réglages().FichierLancement, Réglages().RépertoireInfo, QDir::currentPath()};
    }
    QTemporaryDir dossier;
    QString fichier = dossier.filePath("registre.ini"), dossierCourant = QDir::currentPath();
    BoîtesScriptées boîtes;
    QDateTime maintenant = QDateTime::fromString("2024-05-10 14:30:00", FormatDate);
};
