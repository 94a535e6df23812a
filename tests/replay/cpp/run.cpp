// Plays the application for one macro: connects the add-in, executes its command, disconnects. The recorded calls go to
// standard output.
#include "api.h"

extern "C" bool connectToMorvane(int cookie, kvApplication_c* application);
extern "C" bool disconnectFromMorvane();

int main()
{
    kvApplication_c application;
    if (!connectToMorvane(1, &application))
        return std::fprintf(stderr, "the add-in refused the connection\n"), 1;
    if (!replay::command())
        return std::fprintf(stderr, "the add-in registered no command\n"), 1;
    if (!replay::command()())
        return std::fprintf(stderr, "the command gave false\n"), 1;
    if (!disconnectFromMorvane())
        return std::fprintf(stderr, "the add-in refused to disconnect\n"), 1;
    return 0;
}
