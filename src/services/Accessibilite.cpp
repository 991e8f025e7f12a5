#include "services/Accessibilite.h"

#include <QHash>
#include <QSet>

namespace {
// Name and description in French, then in German. An empty name keeps the control's own.
struct Ligne {
    const char *clé, *nomFr, *descriptionFr, *nomDe, *descriptionDe;
};

// clang-format off
constexpr Ligne Textes[] = {
    // The main window: the map and what lies on it.
    {"EcranPrincipal", "", "Carte des cantons : trouvez sur la carte ce qui est demandé", "", "Karte der Kantone: Finden Sie auf der Karte, was gefragt wird"},
    {"Carte", "Carte de la Suisse", "Cliquez sur le canton demandé ; les barres font défiler la carte", "Karte der Schweiz", "Klicken Sie auf den gefragten Kanton; die Bildlaufleisten verschieben die Karte"},
    {"carte", "Carte des cantons", "Cliquez sur le canton demandé", "Karte der Kantone", "Klicken Sie auf den gefragten Kanton"},
    {"inv", "Contour : %1", "Contour du canton sur la carte", "Umriss: %1", "Umriss des Kantons auf der Karte"},
    {"Pays", "Canton : %1", "Le canton et son nom sur la carte", "Kanton: %1", "Der Kanton und sein Name auf der Karte"},
    {"rond", "Chef-lieu : %1", "Point du chef-lieu sur la carte", "Hauptort: %1", "Punkt des Hauptorts auf der Karte"},
    {"Rond", "Point de chef-lieu", "Modèle des points de chef-lieu", "Hauptortpunkt", "Vorlage der Hauptortpunkte"},
    {"RondVille", "Couleur des chefs-lieux à trouver", "Point d'un chef-lieu encore à trouver", "Farbe der gesuchten Hauptorte", "Punkt eines noch zu findenden Hauptorts"},
    {"RondPref", "Couleur des chefs-lieux trouvés", "Point d'un chef-lieu déjà trouvé", "Farbe der gefundenen Hauptorte", "Punkt eines schon gefundenen Hauptorts"},
    {"Rondnoir", "Point noir", "Marque d'un canton hors du jeu", "Schwarzer Punkt", "Zeichen eines Kantons ausserhalb des Spiels"},
    {"Rondrouge", "Point rouge", "Marque d'une question perdue", "Roter Punkt", "Zeichen einer verlorenen Frage"},
    {"Rondjaune", "Point jaune", "Marque d'un canton choisi pour jouer", "Gelber Punkt", "Zeichen eines zum Spielen gewählten Kantons"},
    {"Rondcible", "Cible", "L'endroit cliqué sur la carte", "Ziel", "Die angeklickte Stelle auf der Karte"},
    {"miniature", "Réduction : %1", "Le canton en petit, pour la question", "Verkleinerung: %1", "Der Kanton verkleinert, für die Frage"},
    {"drapeau", "Drapeau : %1", "Le drapeau du canton", "Wappen: %1", "Das Wappen des Kantons"},
    {"DrapeauPays", "Drapeau", "Modèle des drapeaux", "Wappen", "Vorlage der Wappen"},
    // The question and score panel.
    {"QueFaire", "", "Ce qui est demandé", "", "Was gefragt wird"},
    {"TexteAChercher", "", "Le nom, le chef-lieu ou la plaque à trouver sur la carte", "", "Der Name, der Hauptort oder das Kennzeichen, das auf der Karte zu finden ist"},
    {"ElémentRecherché", "Élément recherché", "Le contour ou le drapeau à trouver sur la carte", "Gesuchtes Element", "Der Umriss oder das Wappen, das auf der Karte zu finden ist"},
    {"ImageRecherchée", "Image à trouver", "Le contour ou le drapeau à trouver sur la carte", "Gesuchtes Bild", "Der Umriss oder das Wappen, das auf der Karte zu finden ist"},
    {"BoîteRestants", "", "Le nombre de cantons qu'il reste à placer dans cette étape", "", "Die Zahl der Kantone, die in dieser Etappe noch zu platzieren sind"},
    {"BoîteScore", "", "Les points de la partie en cours", "", "Die Punkte des laufenden Spiels"},
    {"Reste", "Chiffre des restants", "Un chiffre du nombre de cantons restants", "Ziffer der verbleibenden", "Eine Ziffer der Zahl verbleibender Kantone"},
    {"Digit", "Chiffre du score", "Un chiffre du score ; le premier en est le signe", "Ziffer der Punktzahl", "Eine Ziffer der Punktzahl; die erste ist das Vorzeichen"},
    {"BoutonPasse", "Je passe", "Abandonne cette question contre des points et passe à la suivante", "Ich passe", "Gibt diese Frage gegen Punkte auf und geht zur nächsten"},
    {"BoutonGruge", "Montrer la réponse", "Montre où est le canton demandé ; la question revient plus tard", "Antwort zeigen", "Zeigt, wo der gefragte Kanton liegt; die Frage kommt später wieder"},
    {"AmpouleAllumee", "Ampoule allumée", "L'aide est disponible", "Brennende Glühbirne", "Die Hilfe ist verfügbar"},
    {"AmpouleEteinte", "Ampoule éteinte", "L'aide n'est pas disponible", "Erloschene Glühbirne", "Die Hilfe ist nicht verfügbar"},
    {"BarreH", "Défilement horizontal de la carte", "Fait défiler la carte de gauche à droite", "Waagrechter Bildlauf der Karte", "Verschiebt die Karte nach links und rechts"},
    {"BarreV", "Défilement vertical de la carte", "Fait défiler la carte de haut en bas", "Senkrechter Bildlauf der Karte", "Verschiebt die Karte nach oben und unten"},
    {"LBLParam", "", "Paramétrage du jeu", "", "Spieleinstellungen"},
    {"Bouton", "%1", "Cochez pour jouer cette étape à ce rang", "%1", "Ankreuzen, um diese Etappe an dieser Stelle zu spielen"},
    {"BTN", "", "Valide ou abandonne le paramétrage affiché", "", "Bestätigt oder verwirft die angezeigten Einstellungen"},
    {"Annonces", "Annonces du jeu", "La question posée et le verdict de chaque clic", "Spielansagen", "Die gestellte Frage und das Ergebnis jedes Klicks"},
    // New game.
    {"NouvellePartie", "", "Votre nom et le niveau de la partie", "", "Ihr Name und die Stufe des Spiels"},
    {"BoîteNomJoueur", "Nom du joueur", "Votre nom, 20 caractères au plus", "Name des Spielers", "Ihr Name, höchstens 20 Zeichen"},
    {"Niveau", "", "Le niveau de la partie ; les flèches passent d'un niveau à l'autre", "", "Die Stufe des Spiels; die Pfeiltasten wechseln die Stufe"},
    {"Difficulté", "", "Le niveau de la partie", "", "Die Stufe des Spiels"},
    {"BoutonSortie", "", "Commence la partie", "", "Beginnt das Spiel"},
    {"BoutonAnnuler", "", "Ferme sans rien changer", "", "Schliesst, ohne etwas zu ändern"},
    // Best scores and statistics.
    {"AffichageScores", "", "Les dix meilleurs scores du niveau", "", "Die zehn besten Punktzahlen der Stufe"},
    {"AffichageScoresCommand1", "Quitter", "Ferme les meilleurs scores", "Beenden", "Schliesst die besten Punktzahlen"},
    {"BoutonStatistiques", "Statistiques", "Montre les erreurs de la partie par canton", "Statistik", "Zeigt die Fehler des Spiels nach Kanton"},
    {"Stats", "", "Les points perdus par canton dans chaque étape", "", "Die verlorenen Punkte nach Kanton in jeder Etappe"},
    {"BarreVerticale", "Défilement des cantons", "Fait défiler le tableau des cantons", "Bildlauf der Kantone", "Verschiebt die Tabelle der Kantone"},
    {"BoutonSauvegarde", "Enregistrer les statistiques", "Écrit le tableau dans un fichier texte", "Statistik speichern", "Schreibt die Tabelle in eine Textdatei"},
    {"StatsCommand1", "Quitter", "Ferme les statistiques", "Beenden", "Schliesst die Statistik"},
    // Files and folders.
    {"SélectionPartie", "", "Choisissez le fichier d'une partie", "", "Wählen Sie die Datei eines Spiels"},
    {"ParamétrageRépertoires", "", "Choisissez un dossier ou un fichier", "", "Wählen Sie einen Ordner oder eine Datei"},
    {"Entête", "", "Ce qui est demandé dans cette fenêtre", "", "Was in diesem Fenster verlangt wird"},
    {"Répertoire", "Dossiers", "Les dossiers ; Entrée ouvre celui qui est choisi", "Ordner", "Die Ordner; Eingabe öffnet den gewählten"},
    {"Fichier", "Fichiers", "Les fichiers du dossier", "Dateien", "Die Dateien des Ordners"},
    {"Lecteur", "Lecteurs", "Le volume où chercher", "Laufwerke", "Das Laufwerk, auf dem gesucht wird"},
    {"NomFichier", "Nom du fichier", "Le nom du fichier choisi", "Dateiname", "Der Name der gewählten Datei"},
    {"SousRépertoire", "Nouveau dossier", "Le nom d'un dossier à créer", "Neuer Ordner", "Der Name eines zu erstellenden Ordners"},
    {"Command1", "Créer un sous-dossier", "Crée le dossier nommé", "Unterordner erstellen", "Erstellt den genannten Ordner"},
    {"BoutonOK", "", "Valide le choix", "", "Bestätigt die Wahl"},
    // Information cards and their editor.
    {"Pompe", "", "La fiche de renseignements du canton", "", "Das Informationsblatt des Kantons"},
    {"BTNOK", "", "Ferme la fiche", "", "Schliesst das Blatt"},
    {"LBLPays", "", "Le nom du canton", "", "Der Name des Kantons"},
    {"LBLCapitale", "", "Le chef-lieu du canton", "", "Der Hauptort des Kantons"},
    {"IMGDrapeau", "Drapeau du canton", "Le drapeau du canton de la fiche", "Wappen des Kantons", "Das Wappen des Kantons dieses Blatts"},
    {"TXTInfos", "Renseignements", "Le texte de la fiche", "Informationen", "Der Text des Blatts"},
    {"NomCanton", "Nom du canton", "Le nom du canton de la fiche", "Name des Kantons", "Der Name des Kantons dieses Blatts"},
    {"Edition", "", "Modification des fiches de renseignements", "", "Bearbeitung der Informationsblätter"},
    {"BTNUp", "Première fiche", "Va à la fiche du premier canton", "Erstes Blatt", "Geht zum Blatt des ersten Kantons"},
    {"BTNLeft", "Fiche précédente", "Va à la fiche du canton précédent", "Vorheriges Blatt", "Geht zum Blatt des vorherigen Kantons"},
    {"BTNRight", "Fiche suivante", "Va à la fiche du canton suivant", "Nächstes Blatt", "Geht zum Blatt des nächsten Kantons"},
    {"BTNDown", "Dernière fiche", "Va à la fiche du dernier canton", "Letztes Blatt", "Geht zum Blatt des letzten Kantons"},
    {"BTNQuit", "Quitter", "Enregistre les fiches et ferme", "Beenden", "Speichert die Blätter und schliesst"},
    // The colours of the towns' dots.
    {"Palette", "Palette", "Choisissez la couleur des points", "Palette", "Wählen Sie die Farbe der Punkte"},
    {"FermePalette", "Fermer", "Ferme la palette sans changer de couleur", "Schliessen", "Schliesst die Palette, ohne die Farbe zu ändern"},
    {"Couleur", "", "Prend cette couleur pour les points", "", "Nimmt diese Farbe für die Punkte"},
    // What Qt builds inside lists, texts and tabs.
    {"DéfilementH", "Défilement horizontal", "Fait défiler le contenu de gauche à droite", "Waagrechter Bildlauf", "Verschiebt den Inhalt nach links und rechts"},
    {"DéfilementV", "Défilement vertical", "Fait défiler le contenu de haut en bas", "Senkrechter Bildlauf", "Verschiebt den Inhalt nach oben und unten"},
    {"ListeDéroulante", "Choix", "Les choix offerts ; Entrée prend celui qui est marqué", "Auswahl", "Die angebotenen Möglichkeiten; Eingabe nimmt die markierte"},
    {"ScrollLeftButton", "Onglets précédents", "Montre les onglets cachés à gauche", "Vorherige Reiter", "Zeigt die links verborgenen Reiter"},
    {"ScrollRightButton", "Onglets suivants", "Montre les onglets cachés à droite", "Nächste Reiter", "Zeigt die rechts verborgenen Reiter"},
    // Help.
    {"Aide", "Aide", "La page d'aide ; Échap la ferme", "Hilfe", "Die Hilfeseite; Escape schliesst sie"},
    // The weak spots.
    {"PointsFaibles", "", "Les cantons que vous manquez le plus", "", "Die Kantone, die Sie am häufigsten verfehlen"},
    {"Etapes", "Genre de question", "Choisit les cantons, les chefs-lieux, les drapeaux ou les plaques", "Art der Frage", "Wählt Kantone, Hauptorte, Wappen oder Kennzeichen"},
    {"Parties", "Parties comptées", "Les parties dont on fait le bilan", "Gezählte Spiele", "Die Spiele, die ausgewertet werden"},
    {"Légende", "", "Les teintes de la carte", "", "Die Farbtöne der Karte"},
    {"Rejouer", "", "Rejoue les cantons manqués dans ce genre de question", "", "Spielt die verfehlten Kantone dieser Art von Frage noch einmal"},
    {"Exporter", "", "Écrit le bilan dans un fichier CSV", "", "Schreibt die Auswertung in eine CSV-Datei"},
    {"StatsRejouer", "", "Rejoue les cantons manqués dans cette partie, dans les genres de question où ils l'ont été", "", "Spielt die in diesem Spiel verfehlten Kantone noch einmal, in den Fragearten, in denen sie verfehlt wurden"},
    // The menus' entries.
    {"MenuFichier", "", "Parties : nouvelle, enregistrée, reprise ; nouvelles versions ; quitter", "", "Spiele: neu, gespeichert, fortgesetzt; neue Versionen; beenden"},
    {"MenuParamétrer", "", "Le paramétrage du jeu, le son, les couleurs et les fiches d'information", "", "Die Spieleinstellungen, der Ton, die Farben und die Informationskarten"},
    {"MenuScores", "", "Les meilleurs scores de chaque niveau, vos points faibles et votre progression", "", "Die besten Punktzahlen jeder Stufe, Ihre Schwachstellen und Ihr Fortschritt"},
    {"MenuLangue", "", "Joue en français ou en allemand, même en cours de partie", "", "Spielt auf Französisch oder Deutsch, auch während eines Spiels"},
    {"FichierNouveau", "", "Commence une partie : votre nom et le niveau vous sont demandés", "", "Beginnt ein Spiel: Ihr Name und die Stufe werden erfragt"},
    {"FichierEnregistrer", "", "Enregistre la partie en cours dans un fichier pour la reprendre plus tard", "", "Speichert das laufende Spiel in einer Datei, um es später fortzusetzen"},
    {"FichierLire", "", "Reprend une partie enregistrée", "", "Setzt ein gespeichertes Spiel fort"},
    {"FichierVersion", "", "Cherche sur le site s'il existe une version plus récente", "", "Sucht auf der Website, ob es eine neuere Version gibt"},
    {"FichierQuitter", "", "Ferme le jeu", "", "Schliesst das Spiel"},
    {"MenuAfficheParamètres", "", "Montre sur la carte les cantons et les étapes du paramétrage en cours", "", "Zeigt auf der Karte die Kantone und Etappen der aktuellen Einstellung"},
    {"MenuDéfaut", "", "Revient au jeu complet : tous les cantons, toutes les étapes", "", "Kehrt zum vollständigen Spiel zurück: alle Kantone, alle Etappen"},
    {"MenuRecharger", "", "Charge un paramétrage enregistré et ses scores", "", "Lädt eine gespeicherte Einstellung und ihre Punktzahlen"},
    {"MenuDéfinir", "", "Choisit les cantons et l'ordre des étapes à jouer", "", "Wählt die Kantone und die Reihenfolge der Etappen"},
    {"Menuson", "", "Coupe ou remet le son du jeu", "", "Schaltet den Ton des Spiels aus oder ein"},
    {"MenuCouleurCapitalesATrouver", "", "Choisit la couleur des points des chefs-lieux à trouver", "", "Wählt die Farbe der Punkte der gesuchten Hauptorte"},
    {"MenuCouleurCapitalesTrouvées", "", "Choisit la couleur des points des chefs-lieux trouvés", "", "Wählt die Farbe der Punkte der gefundenen Hauptorte"},
    {"MenuInf", "", "Choisit le dossier où les fiches d'information sont enregistrées", "", "Wählt den Ordner, in dem die Informationskarten gespeichert werden"},
    {"MenuFichInfo", "", "Modifie le texte des fiches d'information des cantons", "", "Ändert den Text der Informationskarten der Kantone"},
    {"ScoreEnCours", "", "Les dix meilleurs scores du niveau de la partie", "", "Die zehn besten Punktzahlen der Stufe des Spiels"},
    {"ScoreFacile", "", "Les dix meilleurs scores du niveau facile", "", "Die zehn besten Punktzahlen der leichten Stufe"},
    {"ScoreMoyen", "", "Les dix meilleurs scores du niveau moyen", "", "Die zehn besten Punktzahlen der mittleren Stufe"},
    {"ScoreDifficile", "", "Les dix meilleurs scores du niveau difficile", "", "Die zehn besten Punktzahlen der schweren Stufe"},
    {"ScoreExpert", "", "Les dix meilleurs scores du niveau expert", "", "Die zehn besten Punktzahlen der Expertenstufe"},
    {"MenuRazScores", "", "Efface les meilleurs scores de ce paramétrage", "", "Löscht die besten Punktzahlen dieser Einstellung"},
    {"MenuPointsFaibles", "", "La carte des cantons que vous manquez le plus, pour les rejouer", "", "Die Karte der Kantone, die Sie am häufigsten verfehlen, um sie zu üben"},
    {"MenuProgression", "", "Vos scores et durées partie après partie, et vos séries", "", "Ihre Punktzahlen und Spieldauern Spiel für Spiel, und Ihre Serien"},
    {"MenuRévision", "", "Parcourt la carte : un clic sur un canton montre sa fiche", "", "Durchsucht die Karte: ein Klick auf einen Kanton zeigt seine Karte"},
    {"MenuFrançais", "", "Passe le jeu en français", "", "Stellt das Spiel auf Französisch"},
    {"MenuAllemand", "", "Passe le jeu en allemand", "", "Stellt das Spiel auf Deutsch"},
    {"MenuAutreLangue", "", "D'autres langues, à traduire", "", "Weitere Sprachen, noch zu übersetzen"},
    {"MenuAide", "", "Ouvre l'aide du jeu", "", "Öffnet die Hilfe des Spiels"},
    {"MenuAPropos", "", "L'auteur, la version et le site du jeu", "", "Der Autor, die Version und die Website des Spiels"},
    // The progress.
    {"Progression", "", "Vos scores et durées partie après partie, à un niveau", "", "Ihre Punktzahlen und Spieldauern Spiel für Spiel, auf einer Stufe"},
    {"ProgressionNiveaux", "Niveau", "Choisit le niveau dont la progression est montrée", "Stufe", "Wählt die Stufe, deren Fortschritt gezeigt wird"},
    {"ProgressionGraphique", "Graphique de progression", "Score et durée de chaque partie dans le temps ; la ligne pointillée est le 10e meilleur score", "Fortschrittsgrafik", "Punktzahl und Dauer jedes Spiels im Lauf der Zeit; die gestrichelte Linie ist der zehntbeste Punktestand"},
    {"ProgressionSeries", "", "Vos séries de parties gagnées et de jours de jeu", "", "Ihre Serien gewonnener Spiele und Spieltage"},
    {"ProgressionImage", "", "Enregistre le graphique dans un fichier PNG", "", "Speichert die Grafik in einer PNG-Datei"},
    {"CartePointsFaibles", "Carte des points faibles", "Plus un canton est foncé, plus vous le manquez ; survolez-le pour ses chiffres", "Karte der Schwachstellen", "Je dunkler ein Kanton, desto öfter verfehlen Sie ihn; zeigen Sie darauf für seine Zahlen"},
};

constexpr const char *Annonces[][2] = {
    {"Trouvez le canton : %1", "Finden Sie den Kanton: %1"},
    {"Trouvez le chef-lieu : %1", "Finden Sie den Hauptort: %1"},
    {"Trouvez le canton de ce drapeau", "Finden Sie den Kanton dieses Wappens"},
    {"Trouvez le canton de la plaque : %1", "Finden Sie den Kanton des Kennzeichens: %1"},
    {"Bonne réponse", "Richtig"},
    {"Mauvaise réponse, erreur %1 sur cette question", "Falsch, Fehler %1 bei dieser Frage"},
    {"Question perdue", "Frage verloren"},
    {"Question passée", "Frage übersprungen"},
};
// clang-format on

const Ligne *Cherche(const QString &clé)
{
    static const QHash<QString, const Ligne *> index = [] {
        QHash<QString, const Ligne *> h;
        for (const auto &l : Textes)
            h.insert(QString::fromUtf8(l.clé), &l);
        return h;
    }();
    return index.value(clé, nullptr);
}

bool Choisissable(QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); }

// Where the text's own letter stands, -1 if it has none.
int LettreMarquée(const QString &t)
{
    for (int i = 0; i + 1 < t.size(); ++i)
        if (t[i] == QLatin1Char('&')) {
            if (t[i + 1] != QLatin1Char('&'))
                return i + 1;
            ++i;
        }
    return -1;
}
} // namespace

std::optional<TTexteAccessible> TexteAccessible(const QString &clé, int langue)
{
    const Ligne *l = Cherche(clé);
    if (!l) {
        int fin = clé.size();
        while (fin > 0 && clé[fin - 1].isDigit())
            --fin;
        if (fin == clé.size() || fin == 0 || !(l = Cherche(clé.left(fin))))
            return std::nullopt;
    }
    const bool de = langue == 2;
    return TTexteAccessible{QString::fromUtf8(de ? l->nomDe : l->nomFr), QString::fromUtf8(de ? l->descriptionDe : l->descriptionFr)};
}

QString TexteAnnonce(TAnnonceLue annonce, int langue, const QString &détail)
{
    const QString t = QString::fromUtf8(Annonces[static_cast<int>(annonce)][langue == 2 ? 1 : 0]);
    return t.contains(QLatin1String("%1")) ? t.arg(détail) : t;
}

QStringList Mnémoniques(const QStringList &textes)
{
    QSet<QChar> prises;
    for (const QString &t : textes)
        if (const int i = LettreMarquée(t); i >= 0)
            prises.insert(t[i].toLower());
    QStringList résultat;
    for (const QString &t : textes) {
        int choix = -1;
        if (LettreMarquée(t) < 0) {
            // Initials of words first, then any letter; "&&" and accented letters never.
            for (int passe = 0; passe < 2 && choix < 0; ++passe)
                for (int i = 0; i < t.size() && choix < 0; ++i) {
                    if (t[i] == QLatin1Char('&')) {
                        ++i;
                        continue;
                    }
                    const bool initiale = i == 0 || !t[i - 1].isLetterOrNumber();
                    if (Choisissable(t[i]) && (passe == 1 || initiale) && !prises.contains(t[i].toLower()))
                        choix = i;
                }
        }
        if (choix < 0) {
            résultat << t;
            continue;
        }
        prises.insert(t[choix].toLower());
        résultat << t.left(choix) + QLatin1Char('&') + t.mid(choix);
    }
    return résultat;
}

QString SansMnémonique(QString texte)
{
    for (int i = 0; i < texte.size(); ++i)
        if (texte[i] == QLatin1Char('&'))
            texte.remove(i, 1); // "&&" leaves one, which the next turn steps over
    return texte;
}
