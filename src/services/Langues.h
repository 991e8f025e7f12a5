#pragma once
// The messages of the language in use.
#include <QString>
#include <vector>

// The messages by what they say; the number is the French id less 1000 (German: +250).
// The program's own messages follow the table's 169, under the same rule of ids.
enum class TMessage : short {
    VersionDuJeu = 0, // Version 6.07 du 30/07/2008
    NomFichierObligatoire = 3, // La saisie d'un nom de fichier valide est obligatoire !
    TitreCourage = 4, // Courage
    FichierExisteDéjà = 5, // Un peu d'imagination... ce fichier existe déjà sur le dis...
    TitrePasDAccord = 6, // Pas d'accord avec vous
    ChoisirFichierPartie = 7, // Il faut sélectionner un fichier de partie
    TitreMEnfin = 8, // M'enffffin
    ParamétrageParDéfautAuLancement = 9, // Voulez-vous que ce paramétrage soit utilisé par défaut lo...
    ChoisirFichierParamétrage = 10, // Veuillez sélectionner un fichier descriptif de paramétris...
    IndiquerVotreNom = 11, // Veuillez indiquer votre nom (20 caractères maximum)
    TitreSaisieIncomplète = 12, // Saisie incomplète
    NiveauNonChoisi = 13, // Le niveau de jeu n'a pas été sélectionné ; par défaut, je...
    TitreSoyezPlusPrécis = 14, // Soyez plus précis dans vos requêtes...
    ConçuParKelmor = 16, // Conçu et réalisé par l'atelier Kelmor
    TitreAPropos = 17, // A propos...
    FichierInfoAbsent = 18, // Apparamment, le fichier facultatif d'information sur les...
    TitrePasPossible = 19, // Pas possible
    TitreEtapeSuivante = 20, // Etape suivante
    AprèsLesCantons = 21, // Après les cantons nous allons passer
    AprèsLesChefsLieux = 22, // Après les chefs-lieux, nous allons passer
    AprèsLesDrapeaux = 23, // Après les drapeaux, nous allons passer
    AuxCantons = 24, // aux cantons....
    AuxChefsLieux = 25, // aux chefs-lieux
    AuxDrapeaux = 26, // aux drapeaux ; c'est fini, les plaisanteries !
    FichierNonInterprétable = 27, // Le fichier sélectionné n'est pas interprétable !
    TitreErreurDeFormat = 28, // Erreur de format
    ScoresNonSauvegardés = 29, // Les scores que vous allez réaliser avec ce paramétrage ne...
    ConfirmerRemiseÀZéro = 30, // Confirmez-vous que vous voulez perdre définitivement la t...
    TitreRemiseÀZéro = 31, // Remise à zéro des meilleurs scores
    ConfirmerAbandon = 32, // Confirmez-vous l'abandon de la partie en cours ?
    TitrePartieEnCours = 33, // Partie en cours...
    PartieTerminée = 34, // On arrête là ... ; la partie est terminée
    TitreTourGratuit = 35, // Bon pour un tour gratuit
    QuestionPerdueAssistée = 36, // A quoi ça sert de vous aider ? La bonne réponse était ind...
    TitreResaisissezVous = 37, // Resaisissez-vous !
    QuestionPerdue = 38, // On essaye voir autre chose pour redémarrer sur de bonnes...
    BravoTopTen = 39, // Bravo, vous figurez dans le top ten
    JoliScore = 40, // Joli score dans la catégorie
    MieuxFaireTopTen = 41, // Vous pouvez mieux faire, mais vous figurez dans le top ten
    TitreMeilleurScore = 42, // Meilleur score
    HorsDesDixMeilleurs = 43, // Désolé, votre performance ne vous amène pas parmi les dix...
    ScoreNonEnregistréAssistance = 44, // Votre score n'est pas enregistré puisque vous avez utilis...
    ColonnePrécédenteVide = 45, // La colonne précédente est encore vide ; remplissez-là d'a...
    TitreErreur = 46, // Erreur
    JeuDéjàChoisi = 47, // Vous avez déjà sélectionné ce jeu en rang inférieur...
    PremierJeu = 48, // Par quel jeu voulez-vous démarrer ???
    MeilleursScores = 50, // Meilleurs scores
    NiveauEnCours = 51, // Niveau en cours
    NiveauFacile = 52, // Niveau facile
    NiveauMoyen = 53, // Niveau moyen
    NiveauDifficile = 54, // Niveau difficile
    MenuFichier = 55, // Fichier
    NouvellePartie = 56, // Nouvelle partie
    EnregistrerPartie = 57, // Enregistrer la partie en cours
    LirePartie = 58, // Lire une partie entamée
    Quitter = 59, // Quitter
    MenuScore = 60, // Score
    RemiseÀZéro = 61, // Remise à zéro
    Révision = 62, // Révision
    MenuParamétrer = 63, // Paramétrer
    AfficherParamétrage = 64, // Afficher le paramétrage courant
    RechargerParamétrage = 65, // Recharger un paramétrage existant
    ParamétrerLeJeu = 66, // Paramétrer le jeu
    Aide = 67, // Aide
    ParamétrageDuJeu = 68, // Paramétrage du jeu
    ConseilParamétrageCantons = 69, // Cliquez sur les cantons pour jouer avec eux (ronds jaunes...
    ConseilParamétrageRonds = 70, // Les ronds jaunes indiquent les cantons avec lesquels vous...
    NomFichierParamétrage = 71, // Nom du fichier paramétrage :
    Cantons = 72, // Cantons
    ChefsLieux = 73, // Chefs-lieux
    Drapeaux = 74, // Drapeaux
    Premier = 75, // 1er
    SauverParamétrageEtScores = 78, // Ce paramétrage et les scores associés doivent être sauveg...
    ParamétrageDeLancement = 79, // Ce paramétrage doit être utilisé lors des prochains démar...
    Annuler = 80, // Annuler
    EntrezVotreNom = 81, // Entrez votre nom
    Apprentissage = 82, // Apprentissage
    Facile = 83, // Facile
    Moyen = 84, // Moyen
    Difficile = 85, // Difficile
    Difficulté = 86, // Difficulté
    ParamétrageDeLaPartie = 87, // Paramétrage de la partie
    FichierParamétrageÀCharger = 88, // Fichier paramétrage à charger
    ArrêtEnCoursDeJeu = 89, // Arrêt en cours de jeu
    PartieÀCharger = 90, // Sélection de la partie à charger
    ChargementEnCours = 91, // Chargement du programme en cours
    NomFichierSauvegarde = 92, // Nom du fichier de sauvegarde
    FichierParamétrageÀSauver = 93, // Fichier paramétrage à sauvegarder
    ParamétrageNonSauvé = 94, // Paramétrage non sauvegardé
    AutresJeuxDuSite = 95, // Retrouvez sur mon site https://kelmor.example.org/jeux/ l...
    Bienvenue = 96, // Bienvenue
    Couleurs = 97, // Couleurs
    RésolutionConvenable = 98, // Cette résolution est convenable pour jouer confortablement
    RésolutionMédiocre = 99, // Cette résolution n'est pas géniale et vous devrez souvent...
    RésolutionPossible = 100, // Votre carte graphique me semble permettre de travailler e...
    RésolutionActuelleSuffit = 101, // cependant, la résolution actuelle de votre écran me paraî...
    TitreCréationFichierInfo = 102, // Création du fichier Info
    FicheÀRemplir = 103, // Vous pouvez enregistrer les caractéristiques du pays par...
    ReprisePartieImpossible = 104, // Impossible de reprendre avec le jeu
    VersionAntérieure = 105, // une partie interrompue avec une version antérieure du jeu !
    TitreEtesVousCertain = 106, // Etes-vous certain ?
    ÉviteDéplacements = 107, // , ce qui vous éviterait de vous déplacer sans cesse sur l...
    TitreChargementParamétrage = 109, // Chargement du fichier de paramétrage
    NomDuJeu = 110, // Les cantons kelmors
    ResteÀPlacer = 111, // Reste à placer
    Score = 112, // Score
    TrouvezMoi = 113, // Trouvez moi...
    FicheDeRenseignements = 114, // Fiche de renseignements
    ChefLieu = 115, // Chef-lieu
    RépertoireParDéfaut = 117, // Souhaitez-vous utiliser comme répertoire par défaut
    TitreChoixRépertoire = 118, // Choix du répertoire
    RépertoireNonInscriptible = 119, // Impossible d'écrire dans le répertoire spécifié !
    DossierNonCréé = 120, // Impossible de créer le dossier spécifié !
    AuMoinsUnCanton = 121, // Il est indispensable de jouer avec au moins un canton !
    ChoisirRépertoireScores = 122, // Sélectionnez le répertoire que le programme utilisera par...
    VisiterLeSite = 123, // Je vous conseille d'aller faire un tour sur mon site
    TitrePublicité = 124, // Publicité bimestrielle gratuite...
    RépertoireExisteDéjà = 125, // Ce répertoire existe déjà !
    TraduireEnItalien = 126, // Vuoi tradurre i testi del gioco in italiano? Scarica l'ar...
    TitreItalien = 127, // non parlo l'italiano !
    Expert = 128, // Expert
    MenuExpert = 131, // Expert
    FichierPtsAbsent = 132, // Le fichier PTS est absent du répertoire de l'application...
    FichierNonEcrit = 134, // Impossible d'écrire le fichier
    ChoisirRépertoireInfo = 135, // Sélectionnez le répertoire que le programme utilisera pou...
    EnregistrementApprentissageAssisté = 136, // Il est impossible d'enregistrer une partie en mode appren...
    ConseilFiche = 137, // En cliquant sur le territoire d'un canton déjà trouvé, vo...
    ConseilFicheRévision = 138, // En cliquant sur le territoire d'un pays, vous ferez appar...
    ParamétrageParDéfaut = 139, // Utiliser le paramétrage par défaut
    DéfinirDossierInfo = 140, // Définir le dossier du fichier d'information
    NiveauExpert = 141, // Niveau expert
    JePasse = 142, // Je passe
    RépertoireSauvegardeParties = 143, // Sélectionnez ou créez le répertoire de sauvegarde des par...
    RépertoireSauvegardeInfo = 144, // Sélectionnez ou créez le répertoire de sauvegarde du fich...
    ParamétrageRépertoires = 145, // Paramétrage des répertoires de sauvegarde
    MisesÀJourSuivantes = 146, // Vous y trouverez notamment les mises à jour suivantes :
    PeutÊtreProtégé = 147, // Il peut par exemple être protégé en écriture, ou défini d...
    ExplicationStatistiques = 148, // Ce tableau indique combien de points vous ont coûté chaqu...
    RechercheCantons = 149, // Recherche des
    RechercheChefsLieux = 150, // Recherche des
    RechercheDrapeaux = 151, // Recherche des
    Statistiques = 152, // Statistiques
    StatistiquesEnregistrées = 153, // Vos statistiques ont été enregistrées dans le fichier
    PoliceCourier = 154, // Utilisez la police Courier pour lire ce tableau
    CouperLeSon = 157, // Couper le son
    MettreLeSon = 158, // Mettre le son
    RechercherMisesÀJour = 159, // Rechercher sur Internet les dernières versions des jeux
    CouleurChefsLieuxÀTrouver = 160, // Choisir la couleur du repère des chefs-lieux à trouver
    CouleurChefsLieuxTrouvés = 161, // Choisir la couleur du repère des chefs-lieux trouvées
    Plaques = 162, // Plaques
    AprèsLesPlaques = 163, // Après les plaques, nous allons passer
    ÀLaRechercheDesPlaques = 165, // à la recherche des plaques...
    RecherchePlaques = 166, // Recherche des
    EditerFiches = 168, // Editer les fiches d'information
    TitreModificationFiches = 169, // Modification de la description des cantons
    StatsNonEcrites = 170, // Le dossier du programme n'accepte pas l'écriture (il est...
    PartieNonNotable = 171, // Impossible d'enregistrer la partie dans ce dossier : le c...
    RéglagesIllisibles = 172, // Le fichier des réglages du jeu n'a pas pu être lu en enti...
    FicheTropLongue = 173, // Erreur à l'enregistrement de cette fiche ; la longueur de l'enregistrement est de %1...
    TitreErreurFiche = 174, // Erreur...
    RéglagesNonEnregistrables = 175, // Les paramètres du jeu ne peuvent pas être enregistrés dans le fichier\n%1...
    HistoriqueMisDeCôté = 176, // the history was damaged, set aside as %1
    HistoriqueInaccessible = 177, // the history can't be opened (%1)
    PointsFaibles = 178, // Mes points faibles
    DixDernières = 179, // Les 10 dernières parties
    CinquanteDernières = 180, // Les 50 dernières parties
    ToutesParties = 181, // Toutes les parties
    BilanCanton = 182, // %1 : demandé %2 fois, manqué %3 fois, %4 erreurs
    JamaisDemandé = 183, // %1 : jamais demandé
    LégendeBilan = 184, // Part des questions manquées :
    RejouerErreurs = 185, // Rejouer mes erreurs
    RienÀRejouer = 186, // nothing was missed in those games
    ExporterCSV = 187, // Exporter pour un tableur
    HistoriqueExporté = 188, // the history was written for a spreadsheet in the file
    Progression = 189, // Ma progression
    DuréeMinutes = 190, // Durée (minutes)
    DixièmeScore = 191, // 10e meilleur score
    SériesJoueur = 192, // games won in a row and days played in a row, each with its record
    AucunePartieFinie = 193, // no game ended at that level with this set
    EnregistrerImage = 194, // Enregistrer l'image
    ImageEnregistrée = 195, // the chart was written in the file
    DatePartie = 196, // Date
    GraphiqueAbsent = 197, // the chart's module can't be found
};

struct TLangues {
    std::vector<QString> Messages = std::vector<QString>(170); // index i is the message of French id 1000 + i
    short NombreMessages = 169;
    unsigned char NombreLangues = 2;
    short Langue = 1; // 1 French, 2 German
    std::vector<QString> NomsFichiersAide;
    std::vector<QString> NomsFichiersInfo;
    std::vector<QString> CheminsInfo;
    QString FichierAide; // the help file of the language in use
};
// The language in use and its words, for the whole run.
TLangues &Langues();
// Message id in the language in use.
inline const QString &Message(TMessage id) { return Langues().Messages[static_cast<std::size_t>(id)]; }

void ChargeChaînes();
// The messages of Langue, Qt's own words in the dialogs too.
void ChargeMessages();

// The name picture of canton k in language l, as the hidden form of names holds it.
QString NomImagePays(int k, int langue);
