// ui/zvuk.cpp - the beeps: tones of a frequency and a length, one after another.
//
// The tones are computed and played on a thread of their own: opening a sound device may take seconds,
// and the simulation must not feel it.
#include "ui/zvuk.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QMediaDevices>
#include <QMetaObject>
#include <QObject>
#include <QQueue>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <numbers>

namespace {

constexpr int kVzorku_s = 44100;
constexpr int kNejviceCeka = 8;
constexpr double kHlasitost = 0.25;
constexpr double kNabeh_s = 0.004; // rise and fall of a tone, against clicks

struct Ton {
    int hz = 0, ms = 0;
};

QByteArray vzorky(Ton ton) {
    const int pocet = ton.ms * kVzorku_s / 1000;
    QByteArray pcm(pocet * 2, '\0');
    auto* kam = reinterpret_cast<std::int16_t*>(pcm.data());
    for (int i = 0; i < pocet; ++i) {
        const double t = i / static_cast<double>(kVzorku_s);
        const double okraj = std::min(t, (pocet - 1 - i) / static_cast<double>(kVzorku_s));
        const double obalka = std::min(1.0, okraj / kNabeh_s);
        const double faze = 2 * std::numbers::pi * ton.hz * t;
        // a little of the third harmonic: the thin sound of a desk's buzzer
        const double vlna = (std::sin(faze) + std::sin(3 * faze) / 5) / 1.2;
        kam[i] = static_cast<std::int16_t>(32767 * kHlasitost * obalka * vlna);
    }
    return pcm;
}

class Prehravac : public QObject {
public:
    void pridej(Ton ton) {
        if (cekaji.size() >= kNejviceCeka)
            return;
        cekaji.enqueue(ton);
        if (!hraje)
            dalsi();
    }
    void konec() {
        cekaji.clear();
        vystup.reset();
    }

private:
    bool otevri() {
        const QAudioDevice zarizeni = QMediaDevices::defaultAudioOutput();
        if (zarizeni.isNull())
            return false;
        if (vystup && zarizeni == pouzite)
            return true;
        QAudioFormat format;
        format.setSampleRate(kVzorku_s);
        format.setChannelCount(1);
        format.setSampleFormat(QAudioFormat::Int16);
        if (!zarizeni.isFormatSupported(format))
            return false;
        pouzite = zarizeni;
        vystup = std::make_unique<QAudioSink>(zarizeni, format);
        connect(vystup.get(), &QAudioSink::stateChanged, this, [this](QAudio::State stav) {
            if (hraje && (stav == QAudio::IdleState || stav == QAudio::StoppedState)) {
                hraje = false;
                QMetaObject::invokeMethod(
                    this, [this] { dalsi(); }, Qt::QueuedConnection);
            }
        });
        return true;
    }
    void dalsi() {
        if (hraje || cekaji.isEmpty())
            return;
        if (!otevri()) {
            cekaji.clear();
            return;
        }
        vystup->stop();
        zdroj.close();
        zdroj.setData(vzorky(cekaji.dequeue()));
        zdroj.open(QIODevice::ReadOnly);
        hraje = true;
        vystup->start(&zdroj);
        if (vystup->error() != QAudio::NoError) {
            hraje = false;
            cekaji.clear();
        }
    }

    QQueue<Ton> cekaji;
    QBuffer zdroj;
    QAudioDevice pouzite;
    std::unique_ptr<QAudioSink> vystup;
    bool hraje = false;
};

QThread* vlakno = nullptr;
Prehravac* prehravac = nullptr;

} // namespace

void zapni_zvuk() {
    if (vlakno != nullptr)
        return;
    vlakno = new QThread;
    prehravac = new Prehravac;
    prehravac->moveToThread(vlakno);
    vlakno->start();
}

void vypni_zvuk() {
    if (vlakno == nullptr)
        return;
    QMetaObject::invokeMethod(prehravac, [p = prehravac] { p->konec(); });
    vlakno->quit();
    if (vlakno->wait(500)) { // a device that hangs must not hold the end of the program
        delete prehravac;
        delete vlakno;
    }
    prehravac = nullptr;
    vlakno = nullptr;
}

void zahraj_ton(int hz, int ms) {
    if (prehravac == nullptr || hz <= 0 || ms <= 0)
        return;
    const Ton ton{hz, std::min(ms, 5000)};
    QMetaObject::invokeMethod(
        prehravac, [p = prehravac, ton] { p->pridej(ton); }, Qt::QueuedConnection);
}
