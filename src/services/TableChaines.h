#pragma once
#include <QString>
// One string of the program's compiled-in table, by id; empty when the table has no such id.
QString ChaîneTable(int id);
// True when the table holds the id (an empty string can be a real row).
bool ChaîneExiste(int id);
