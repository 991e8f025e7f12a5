#pragma once
// The help pages, opened at a context: the F1 key asks the active form or control for its own.
#include <QString>
#include <functional>

// Opens the help of the language in use at a context (10, 20, 65, 90, 160, 180).
void OuvreAide(int contexte);
// The page that a context opens, beside the program.
QString PageAide(int contexte);
// The context that F1 opens in a control: its own, or that of the first form or
// control above it that has one.
class QWidget;
int ContexteDe(QWidget *contrôle);
// Listens for F1 in every form of the program.
void InstalleToucheAide();
// For tests: what runs in place of the help window.
void InstalleAide(std::function<void(int)> aide);
