#include "fenster/rechner/nebenrechnung.h"

#include <atomic>
#include <semaphore>
#include <utility>

namespace zinfolio {
namespace {

constexpr std::chrono::milliseconds takt{50};
std::chrono::milliseconds geduld{200};

}  // namespace

/// What window and thread both know of a calculation.
struct Nebenrechnung::Lauf {
    std::atomic<std::size_t> runden = 0;
    std::binary_semaphore fertig{0};
    bool ausgerechnet = false;
    std::exception_ptr fehler;
};

Nebenrechnung::Nebenrechnung(QObject* eltern) : QObject(eltern) {
    takt_.setInterval(takt);
    connect(&takt_, &QTimer::timeout, this, &Nebenrechnung::Nachsehen);
}

Nebenrechnung::~Nebenrechnung() = default;

void Nebenrechnung::Starten(Auftrag auftrag) {
    Aufgeben();
    auftrag_ = std::move(auftrag);
    lauf_ = std::make_shared<Lauf>();
    faden_ = std::jthread([lauf = lauf_, arbeit = auftrag_.arbeit](const std::stop_token& halt) {
        try {
            arbeit([&](std::size_t runden) {
                lauf->runden = runden;
                return !halt.stop_requested();
            });
        } catch (...) {
            lauf->fehler = std::current_exception();
        }
        lauf->fertig.release();
    });
    if (geduld.count() > 0 && lauf_->fertig.try_acquire_for(geduld)) return Abschliessen();
    takt_.start();
    emit dauertAn();
}

void Nebenrechnung::Aufgeben() {
    const bool lange = takt_.isActive();
    takt_.stop();
    faden_ = {};
    lauf_.reset();
    auftrag_ = {};
    if (lange) emit beendet();
}

void Nebenrechnung::Nachsehen() {
    if (!lauf_->ausgerechnet) lauf_->ausgerechnet = lauf_->fertig.try_acquire();
    if (lauf_->ausgerechnet && auftrag_.willkommen()) return Abschliessen();
    emit fortgeschritten(lauf_->runden);
}

void Nebenrechnung::Abschliessen() {
    const auto abschluss = auftrag_.abschluss;
    faden_.join();
    const std::exception_ptr fehler = lauf_->fehler;
    Aufgeben();
    abschluss(fehler);
}

std::chrono::milliseconds GeduldSetzen(std::chrono::milliseconds neue) {
    return std::exchange(geduld, neue);
}

}  // namespace zinfolio
