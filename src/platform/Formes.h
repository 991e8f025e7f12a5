#pragma once
// Modal forms: shown and waited for, or handled by a script in tests.
#include <QString>
#include <functional>
#include <vector>

class QDialog;

// Shows the form modally and returns its result, as QDialog::exec does.
int ExécuteModal(QDialog &forme);

// For tests: what happens in place of the wait. The script may click the form's
// controls; its return value is the form's result. An empty function puts the real wait back.
void InstalleFormesModales(std::function<int(QDialog &)> script);

// The object names of the forms shown modally so far, for tests.
std::vector<QString> &FormesMontrées();
