#include <arv.h> // before Qt

#include "CameraFinder.h"

QVector<CameraFinder::Camera> CameraFinder::find()
{
    arv_disable_interface("USB3Vision");
    arv_update_device_list();
    QVector<Camera> cameras;
    for (unsigned i = 0; i < arv_get_n_devices(); ++i) {
        cameras.append({QString::fromUtf8(arv_get_device_address(i)), QString::fromUtf8(arv_get_device_vendor(i)),
                        QString::fromUtf8(arv_get_device_model(i)), QString::fromUtf8(arv_get_device_serial_nbr(i))});
    }
    return cameras;
}
