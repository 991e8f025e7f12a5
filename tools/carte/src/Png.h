#pragma once
// Writing the pictures small: a palette where the picture has at most 256
// colours (lossless), else, if allowed, a palette chosen by median cut.
#include <QImage>
#include <QString>

struct ÉcriturePng {
    bool quantifier = false; // allow a lossy 256-colour palette
};

// Returns the size written. Throws std::runtime_error if it can't write.
qint64 EnregistrePng(const QImage &image, const QString &chemin, ÉcriturePng options = {});

// The picture reduced to at most 256 colours by median cut (no dithering).
QImage Palette256(const QImage &image);
