#pragma once

#include "Literal.h"

#include <VyViewerCore/Device.h>

#include <QProcess>

/// The node by which the tests see what a camera holds, and its value; -1 when it cannot be read.
const QString kDelay = "InputTriggerDelay"_s;

inline float delayOf(Device *device)
{
    float value = -1;
    float min = 0;
    float max = 0;
    float inc = 0;
    return device->getParamFloat(kDelay, value, min, max, inc) == 0 ? value : -1;
}

/// A simulated camera on the network, in a process of its own that can be killed.
class CameraProcess
{
public:
    ~CameraProcess() { kill(); }

    /// What it printed when it was ready, or why it is not.
    QString start(const QStringList &arguments = {})
    {
        kill();
        m_process.start(QStringLiteral(CAMERA), arguments);
        while (m_process.waitForReadyRead(20000) && !m_process.canReadLine()) {
        }
        const QByteArray line = m_process.readLine();
        return QString::fromUtf8(line.isEmpty() ? m_process.readAllStandardError() : line);
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
        const QByteArray said = m_process.readAllStandardError();
        if (said.contains("Sanitizer")) { // which its status does not tell
            qFatal("%s", said.constData());
        }
    }

private:
    QProcess m_process;
};
