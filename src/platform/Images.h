#pragma once
// The game's pictures, compiled in, crisp at the screen's pixel ratio.
#include <QPixmap>
#include <QSize>
#include <QString>

// A picture by its name without extension, e.g. "carte", "inv06", "pays06_de",
// "RondVille", "drapeau06". Vector pictures are drawn at the pixel ratio;
// bitmaps come in @2x where the ratio asks for it. The logical size is that
// of the picture at 100 %. A missing picture gives an empty one of `secours`.
QPixmap ImageJeu(const QString &nom, QSize secours = {});

// A vector picture drawn larger than its own size, centred on a transparent
// ground of `taille` (logical pixels), at the pixel ratio.
QPixmap ImageJeuAgrandie(const QString &nom, QSize taille, int côté);

// The pixel ratio pictures are made for (the screen's, or the one installed).
qreal RatioPixels();
void InstalleRatioPixels(qreal ratio); // 0 puts the screen's back
