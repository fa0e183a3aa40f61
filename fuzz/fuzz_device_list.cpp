// A device listing of an engine that we did not write.
#include "output/device_list.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QList<ListedDevice> devices = parseDeviceList(
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    for (qsizetype row = 0; row < devices.size(); ++row) {
        if (devices.at(row).id.isEmpty() || rowOfDevice(devices, devices.at(row).id) != row)
            std::abort();
    }
    return 0;
}
