#pragma once
// Message boxes by style number, as the game asks its questions.
#include <QString>
#include <functional>

// Styles: buttons + icon. 16 OK/stop, 36 Yes-No/question, 48 OK/exclamation, 64 OK/information.
constexpr int StyleCritique = 16;
constexpr int StyleQuestion = 36;
constexpr int StyleExclamation = 48;
constexpr int StyleInformation = 64;

// Answers: which button closed the box.
constexpr int RéponseOK = 1;
constexpr int RéponseAnnuler = 2;
constexpr int RéponseOui = 6;
constexpr int RéponseNon = 7;

// Shows a modal box and returns the button pressed.
int Boîte(const QString &texte, int style, const QString &titre);

// What stands behind Boîte.
class FournisseurBoîtes {
public:
    virtual ~FournisseurBoîtes() = default;
    virtual int Montre(const QString &texte, int style, const QString &titre) = 0;
};

// nullptr puts the real boxes back.
void InstalleBoîtes(FournisseurBoîtes *fournisseur);

