#include <new>

#include "stapel/befehle/aufruf.h"
#include "stapel/befehle/kanal.h"

int main(int argc, char** argv) {
    try {
        return zinfolio::Aufrufen(argc, argv);
    } catch (const std::bad_alloc&) {
        zinfolio::FehlerMelden("Der Speicher reicht nicht.");
    } catch (const std::exception& fehler) {
        zinfolio::FehlerMelden(fehler.what());
    }
    return zinfolio::status::falsch;
}
