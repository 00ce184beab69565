#include "Picture.h"

#include <QtGlobal>

const QVector<Picture> &Picture::all()
{
    constexpr auto LTR = Qt::LeftToRight;
    constexpr auto RTL = Qt::RightToLeft;
    // First each value alone, then what is risky together.
    // clang-format off
    static const QVector<Picture> pictures{
        {"plain", 9, 100, 472, Light, "Fusion", LTR, "en", "TcpServer", Idle},
        {"font-11", 11, 100, 472, Light, "Fusion", LTR, "en", "TcpServer", Idle},
        {"font-13", 13, 100, 472, Light, "Fusion", LTR, "en", "TcpServer", Idle},
        {"scale-150", 9, 150, 472, Light, "Fusion", LTR, "en", "TcpServer", Idle},
        {"scale-200", 9, 200, 472, Light, "Fusion", LTR, "en", "TcpServer", Idle},
        {"width-360", 9, 100, 360, Light, "Fusion", LTR, "en", "TcpServer", Idle},
        {"width-800", 9, 100, 800, Light, "Fusion", LTR, "en", "TcpServer", Idle},
        {"width-1920", 9, 100, 1920, Light, "Fusion", LTR, "en", "TcpServer", Idle},
        {"dark", 9, 100, 472, Dark, "Fusion", LTR, "en", "TcpServer", Idle},
        {"high-contrast", 9, 100, 472, HighContrast, "Fusion", LTR, "en", "TcpServer", Idle},
        {"windows", 9, 100, 472, Light, "Windows", LTR, "en", "TcpServer", Idle},
        {"rtl", 9, 100, 472, Light, "Fusion", RTL, "en", "TcpServer", Idle},
        {"german", 9, 100, 472, Light, "Fusion", LTR, "de", "TcpServer", Idle},
        {"japanese", 9, 100, 472, Light, "Fusion", LTR, "ja", "TcpServer", Idle},
        {"acquiring", 9, 100, 472, Light, "Fusion", LTR, "en", "TcpServer", Acquiring},
        {"editing", 9, 100, 472, Light, "Fusion", LTR, "en", "TcpServer", Editing},
        {"list-dark", 9, 100, 472, Dark, "Fusion", LTR, "en", "TcpServer", List},
        {"tip-dark-windows", 9, 100, 472, Dark, "Windows", LTR, "de", "TcpServer", Tip},
        {"acquiring-contrast", 9, 100, 472, HighContrast, "Windows", LTR, "en", "TcpServer", Acquiring},
        {"editing-contrast", 11, 100, 472, HighContrast, "Fusion", LTR, "en", "TcpServer", Editing},
        {"list-contrast", 9, 100, 472, HighContrast, "Windows", RTL, "en", "TcpServer", List},
        {"narrow-german", 13, 200, 360, Light, "Fusion", LTR, "de", "TcpClient", Idle},
        {"narrow-serial", 13, 150, 360, Dark, "Windows", RTL, "de", "RS-232", Idle},
        {"tall-japanese", 13, 150, 472, Light, "Windows", LTR, "ja", "RS-232", Idle},
    };
    // clang-format on
    return pictures;
}

QVector<Picture> Picture::here()
{
    const int scale = qRound(100 * qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble());
    QVector<Picture> pictures;
    for (const Picture &picture : all()) {
        if (picture.scale == scale) {
            pictures.append(picture);
        }
    }
    return pictures;
}
