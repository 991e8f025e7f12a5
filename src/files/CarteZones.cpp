#include "files/CarteZones.h"

#include <algorithm>
#include <cstring>

bool LitCarteZones(const QByteArray &octets, TCarteZones &carte)
{
    // Any valid file fits in a header, the row marks and the runs of the tables; a
    // cut last record is left unread.
    constexpr qsizetype RecordsMax = 1 + MaxLignes + MaxSegments;
    if (octets.size() / 4 > RecordsMax)
        return false;

    // Filled aside, so that a refused file leaves the tables as they were.
    static TPointSegment segments[NombreCartes][MaxSegments];
    static i16 débuts[NombreCartes][MaxLignes];
    std::memset(segments, 0, sizeof segments);
    std::memset(débuts, 0, sizeof débuts);

    int numéro = -1; // the map of the records read, none yet
    int ligne = -1;
    int compte = 0;
    const auto *p = reinterpret_cast<const unsigned char *>(octets.constData());
    const qsizetype nombre = octets.size() / 4;
    for (qsizetype n = 0; n < nombre; ++n, p += 4) {
        TPointSegment r;
        r.NuméroCarte = p[0];
        r.X = static_cast<i16>(static_cast<std::uint16_t>(p[1] | (p[2] << 8)));
        r.Zone = p[3];

        if (r.NuméroCarte != numéro && r.NuméroCarte != 255) {
            if (r.NuméroCarte >= NombreCartes)
                return false;
            if (numéro >= 0) {
                ligne = ligne + 1;
                if (ligne >= MaxLignes)
                    return false;
                débuts[numéro][ligne] = static_cast<i16>(compte);
            }
            numéro = r.NuméroCarte;
            ligne = -1;
            compte = 0;
        }
        if (numéro < 0)
            return false; // 255 can't open the file: it names the map of the records before
        if (n == 0) {
            if (r.Zone != 4 || r.X != 0)
                return false;
        } else if (r.Zone == 0 && r.X == 0) {
            ligne = ligne + 1;
            if (ligne >= MaxLignes)
                return false;
            débuts[numéro][ligne] = static_cast<i16>(compte);
        } else {
            if (compte >= MaxSegments)
                return false;
            segments[numéro][compte] = r;
            compte = compte + 1;
        }
    }
    // A file that stops before the last row is closed, or leaves a canton without a
    // pixel, would start a game in which some click never finds its canton.
    if (numéro != 0 || ligne < HauteurCarte)
        return false;
    bool couvert[NombrePlaces + 1] = {};
    for (int y = 0; y < HauteurCarte; ++y)
        for (int s = débuts[0][y]; s < débuts[0][y + 1]; ++s) {
            const int fin = s + 1 < débuts[0][y + 1] ? segments[0][s + 1].X : LargeurCarte - 1;
            const int zone = segments[0][s].Zone;
            if (zone <= NombrePlaces && std::max(segments[0][s].X + 1, 0) <= std::min(fin, LargeurCarte - 1))
                couvert[zone] = true;
        }
    for (int c = 1; c <= NombrePlaces; ++c)
        if (!couvert[c])
            return false;
    std::memcpy(carte.PointsSegments, segments, sizeof segments);
    std::memcpy(carte.DébutsLignes, débuts, sizeof débuts);
    return true;
}
