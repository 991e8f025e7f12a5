#pragma once
// What a screen reader says of the game's controls and of the game itself, in French
// and German; and the keyboard letters of the menus. Plain data and text: the windows
// apply them.
#include <QString>
#include <QStringList>
#include <optional>

// The words for one control, found by its object name. An empty name leaves the one
// the control shows (a caption, a label's text, a tooltip).
struct TTexteAccessible {
    QString Nom, Description;
};

// The words for the control named `clé` in language `langue` (1 French, 2 German).
// A name ending in digits (drapeau07, Bouton12) falls back on its family (drapeau, Bouton),
// whose name may hold %1 for the member's own words. Nothing when the control is unknown.
std::optional<TTexteAccessible> TexteAccessible(const QString &clé, int langue);

// What is announced to a screen reader while playing.
enum class TAnnonceLue {
    QuestionCanton,    // %1: the canton to find
    QuestionChefLieu,  // %1: the chief town
    QuestionDrapeau,
    QuestionPlaque,    // %1: the plate's letters
    Juste,
    Faux,              // %1: errors on this question so far
    QuestionPerdue,
    QuestionPassée,
};
QString TexteAnnonce(TAnnonceLue annonce, int langue, const QString &détail = QString());

// The texts of one menu with a keyboard letter ('&') each, unique within the list: a
// letter a text already carries stays, the others take the first free initial of a word,
// else the first free letter or digit. Only unaccented letters are chosen, as every
// keyboard has them; "&&" is a plain ampersand. A text with no free letter gets none.
QStringList Mnémoniques(const QStringList &textes);
// The text as shown, without its keyboard letter.
QString SansMnémonique(QString texte);
