// Asks a window to close as a window manager's close box does: a WM_DELETE_WINDOW
// message, which the program may answer with a question or refuse. Without a
// window manager under Xvfb, nothing else sends it.
//
//     ferme_fenetre WINDOW_ID        (decimal or 0x hexadecimal, as xdotool prints it)
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdio>
#include <cstdlib>

namespace {

bool erreurX = false;

int noteErreur(Display *, XErrorEvent *)
{
    erreurX = true;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: ferme_fenetre WINDOW_ID\n");
        return 2;
    }
    char *fin = nullptr;
    const unsigned long id = std::strtoul(argv[1], &fin, 0);
    if (fin == argv[1] || *fin != '\0' || id == 0) {
        std::fprintf(stderr, "ferme_fenetre: not a window id: %s\n", argv[1]);
        return 2;
    }
    Display *d = XOpenDisplay(nullptr);
    if (!d) {
        std::fprintf(stderr, "ferme_fenetre: can't open the display\n");
        return 1;
    }
    XSetErrorHandler(noteErreur);
    const Window fenêtre = id;
    const Atom protocoles = XInternAtom(d, "WM_PROTOCOLS", False);
    const Atom fermeture = XInternAtom(d, "WM_DELETE_WINDOW", False);

    // A window that doesn't take the message would be killed by a window manager:
    // that is a fault of the program, not something to paper over here.
    Atom *liste = nullptr;
    int nombre = 0;
    bool prend = false;
    if (XGetWMProtocols(d, fenêtre, &liste, &nombre)) {
        for (int i = 0; i < nombre; ++i)
            prend = prend || liste[i] == fermeture;
        XFree(liste);
    }
    XSync(d, False);
    if (erreurX) {
        std::fprintf(stderr, "ferme_fenetre: no window 0x%lx\n", id);
        XCloseDisplay(d);
        return 1;
    }
    if (!prend) {
        std::fprintf(stderr, "ferme_fenetre: window 0x%lx does not take WM_DELETE_WINDOW\n", id);
        XCloseDisplay(d);
        return 1;
    }

    XEvent message{};
    message.xclient.type = ClientMessage;
    message.xclient.window = fenêtre;
    message.xclient.message_type = protocoles;
    message.xclient.format = 32;
    message.xclient.data.l[0] = static_cast<long>(fermeture);
    message.xclient.data.l[1] = CurrentTime;
    XSendEvent(d, fenêtre, False, NoEventMask, &message);
    XSync(d, False);
    const bool envoyé = !erreurX;
    XCloseDisplay(d);
    if (!envoyé) {
        std::fprintf(stderr, "ferme_fenetre: the message to 0x%lx was refused\n", id);
        return 1;
    }
    return 0;
}
