#include "Cantons.h"

#include <stdexcept>

namespace {

// Chief towns in LV95, from the national map (town centre, to about 200 m).
// A soft hyphen (U+00AD) in a name marks where the map may hyphenate it when
// the canton has no room for it on one line.
const std::array<FicheCanton, NombreCantons> table{{
    {1, 15, "AR", "Appenzell Rhodes Extérieures", "Appenzell Ausserrhoden", 440, 99, 210, 46, 170, 448, 113, {2738600, 1250400}},
    {2, 16, "AI", "Appenzell Rhodes Intérieures", "Appenzell Innerrhoden", 454, 105, 195, 42, 195, 462, 120, {2749000, 1244100}},
    {3, 19, "AG", "Argovie", "Aargau", 259, 75, 93, 90, 93, 296, 112, {2645800, 1249000}},
    {4, 13, "BL", "Bâle-Campagne", "Basel-Landschaft", 169, 85, 120, 44, 120, 257, 95, {2622300, 1259300}},
    {5, 12, "BS", "Bâle-Ville", "Basel-Stadt", 226, 54, 35, 40, 35, 238, 83, {2611300, 1267500}},
    {6, 2, "BE", "Berne", "Bern", 151, 103, 200, 211, 200, 218, 198, {2600600, 1199700}},
    {7, 10, "FR", "Fribourg", "Freiburg", 134, 185, 82, 106, 82, 178, 218, {2578700, 1183900}},
    {8, 25, "GE", "Genève", "Genf", 27, 301, 55, 55, 55, 52, 328, {2500300, 1117900}},
    {9, 8, "GL", "Glaris", "Glarus", 402, 156, 48, 72, 48, 420, 176, {2723700, 1211800}},
    {10, 18, "GR", "Grisons", "Graubünden", 374, 176, 232, 166, 232, 476, 210, {2759700, 1190700}},
    {11, 26, "JU", "Jura", "Jura", 151, 95, 88, 65, 88, 213, 119, {2593400, 1245600}},
    {12, 3, "LU", "Lucerne", "Luzern", 270, 134, 88, 98, 88, 328, 176, {2666200, 1211500}},
    {13, 24, "NE", "Neuchâtel", "Neuenburg", 95, 156, 86, 60, 86, 152, 186, {2561300, 1204700}},
    {14, 7, "NW", "Nid\u00ADwald", "Nid\u00ADwal\u00ADden", 312, 185, 60, 47, 60, 336, 190, {2670600, 1201300}},
    {15, 6, "OW", "Obwald", "Obwalden", 296, 192, 61, 44, 61, 321, 202, {2661200, 1194300}},
    {16, 17, "SG", "Saint-Gall", "St Gallen", 390, 89, 111, 124, 111, 456, 103, {2746000, 1254300}},
    {17, 14, "SH", "Schaffhouse", "Schaffhausen", 339, 28, 75, 61, 75, 368, 56, {2689600, 1283600}},
    {18, 5, "SZ", "Schwyz", "Schwyz", 340, 146, 80, 64, 80, 366, 182, {2692100, 1208300}},
    {19, 11, "SO", "Soleure", "Solothurn", 208, 97, 90, 80, 90, 232, 144, {2607600, 1228600}},
    {20, 21, "TI", "Tessin", "Tessin", 340, 256, 99, 148, 99, 418, 328, {2722200, 1116900}},
    {21, 20, "TG", "Thurgovie", "Thurgau", 373, 61, 115, 59, 115, 401, 81, {2709700, 1268300}},
    {22, 4, "UR", "Uri", "Uri", 342, 189, 73, 89, 73, 369, 208, {2691000, 1192600}},
    {23, 23, "VS", "Valais", "Wallis", 137, 252, 215, 144, 215, 208, 326, {2594000, 1119900}},
    {24, 22, "VD", "Vaud", "Waadt", 47, 188, 153, 150, 153, 120, 272, {2538100, 1152600}},
    {25, 9, "ZG", "Zoug", "Zug", 341, 143, 40, 33, 40, 352, 152, {2681700, 1224600}},
    {26, 1, "ZH", "Zürich", "Zürich", 336, 59, 80, 104, 80, 356, 119, {2683200, 1247800}},
}};

} // namespace

const std::array<FicheCanton, NombreCantons> &Cantons() { return table; }

const FicheCanton &Canton(int numéro)
{
    if (numéro < 1 || numéro > NombreCantons)
        throw std::out_of_range("canton number");
    return table[numéro - 1];
}

int NuméroDuFédéral(int fédéral)
{
    for (const FicheCanton &c : table)
        if (c.fédéral == fédéral)
            return c.numéro;
    return 0;
}
