#pragma once

#include <QProcess>

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
    }

private:
    QProcess m_process;
};
