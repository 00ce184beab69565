// What the panel costs on a network: requests to the camera, and time, of what a user does.

#include "devices/CameraServer.h"
#include "devices/GenicamDevice.h"
#include "panel/VyTriggerConfigWdg.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSpinBox>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <functional>
#include <thread>
#include <vector>

namespace {

constexpr char kAddress[] = "127.0.0.1";
constexpr int kRuns = 21;

struct Result
{
    quint64 requests;
    double milliseconds; // median
};

Result measure(GenicamDevice &camera, const std::function<void(int)> &action)
{
    std::vector<double> times;
    quint64 requests = 0;
    for (int run = 0; run < kRuns; ++run) {
        QCoreApplication::processEvents();
        const quint64 before = camera.roundTrips();
        QElapsedTimer timer;
        timer.start();
        action(run);
        QCoreApplication::processEvents();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
        requests = std::max(requests, camera.roundTrips() - before);
    }
    std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
    return {requests, times[kRuns / 2]};
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false\ndefault.warning=false"));
    const QApplication application(argc, argv);
    QString error;
    const auto server = CameraServer::start({QString::fromLatin1(kAddress), {}, {}}, &error);
    if (!server) {
        std::fprintf(stderr, "round_trips: %s\n", qPrintable(error));
        return 2;
    }
    std::atomic<bool> stop{false};
    std::thread behaviour([&] {
        while (!stop) {
            server->update();
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    });
    {
        const auto camera = GenicamDevice::openNetwork(QString::fromLatin1(kAddress), &error);
        if (!camera) {
            qFatal("%s", qPrintable(error));
        }
        camera->setParamEnum(QStringLiteral("InputTriggerMode"), QStringLiteral("Hold"));
        for (int stopConfiguration = 2; stopConfiguration <= 5; ++stopConfiguration) {
            camera->setParamBool(QStringLiteral("TriggerStopConfig%1Enable").arg(stopConfiguration), true);
        }
        VyTriggerConfigWdg panel;
        panel.setVyDevice(camera.get());
        panel.show();
        const auto editor = [&panel](const char *node) { return panel.findChild<QWidget *>(QString::fromLatin1(node)); };
        auto *const source = editor("InputTriggerSource")->findChild<QComboBox *>();
        auto *const frames = editor("TriggerStopConfig1FrameCount")->findChild<QSpinBox *>();
        const struct { const char *what; std::function<void(int)> action; } actions[] = {
            {"change the source, stop block shown", [source](int run) {
                source->setCurrentText(run % 2 ? QStringLiteral("TcpServer") : QStringLiteral("Udp")); }},
            {"edit a number on a stop page", [frames](int run) { frames->setFocus(); frames->setValue(run + 2); frames->clearFocus(); }},
            {"hide and show the panel", [&panel](int) { panel.hide(); panel.show(); }}};
        std::printf("Hold, five stop configurations; requests to the camera and median of %d runs\n\n", kRuns);
        std::printf("%-38s %20s %20s\n", "", "nothing kept", "kept for an action");
        for (const auto &each : actions) {
            std::printf("%-38s", each.what);
            for (const bool caching : {false, true}) {
                camera->setCaching(caching);
                const Result result = measure(*camera, each.action);
                std::printf(" %7llu %9.2f ms", result.requests, result.milliseconds);
            }
            std::puts("");
        }
    }
    stop = true;
    behaviour.join();
    return 0;
}
