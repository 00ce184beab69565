#include "Failure.h" // before Qt

#include "GenicamDevice.h"

#include "BuiltInCamera.h"
#include "CachingPort.h"
#include "CameraDescription.h"
#include "NetworkLink.h"

#include <QSet>

#include <chrono>
#include <cmath>
#include <limits>
#include <thread>

namespace {

constexpr int kCommandTime = 512; // milliseconds; a command that takes longer is not waited for

RuvoNodeType typeOf(ArvGcNode *node)
{
    // An enumeration also is an integer and a string.
    if (ARV_IS_GC_ENUMERATION(node)) {
        return RuvoNodeEnumeration;
    }
    if (ARV_IS_GC_COMMAND(node)) {
        return RuvoNodeCommand;
    }
    if (ARV_IS_GC_BOOLEAN(node)) {
        return RuvoNodeBoolean;
    }
    if (ARV_IS_GC_STRING(node)) {
        return RuvoNodeString;
    }
    if (ARV_IS_GC_INTEGER(node)) {
        return RuvoNodeInteger;
    }
    return ARV_IS_GC_FLOAT(node) ? RuvoNodeFloat : RuvoNodeUnknown;
}

/// The device's own function for this reports neither availability nor locks.
RuvoNodeAccessMode accessModeOf(ArvGcNode *node)
{
    if (typeOf(node) == RuvoNodeUnknown) {
        return RuvoNodeNotImplemented;
    }
    ArvGcFeatureNode *feature = ARV_GC_FEATURE_NODE(node);
    Failure failure;
    const bool implemented = arv_gc_feature_node_is_implemented(feature, failure.slot());
    if (failure) {
        return RuvoNodeNotAvailable;
    }
    if (!implemented) {
        return RuvoNodeNotImplemented;
    }
    if (!arv_gc_feature_node_is_available(feature, failure.slot()) || failure) {
        return RuvoNodeNotAvailable;
    }
    const bool locked = arv_gc_feature_node_is_locked(feature, failure.slot()) || failure;
    const ArvGcAccessMode mode =
        ARV_IS_GC_COMMAND(node) ? ARV_GC_ACCESS_MODE_WO : arv_gc_feature_node_get_actual_access_mode(feature);
    switch (mode) {
    case ARV_GC_ACCESS_MODE_RO:
        return RuvoNodeReadOnly;
    case ARV_GC_ACCESS_MODE_WO:
        return locked ? RuvoNodeNotAvailable : RuvoNodeWriteOnly;
    case ARV_GC_ACCESS_MODE_RW:
        return locked ? RuvoNodeReadOnly : RuvoNodeReadWrite;
    case ARV_GC_ACCESS_MODE_UNDEFINED:
        break;
    }
    return RuvoNodeNotAvailable;
}

int toInt(gint64 value)
{
    return int(qBound<gint64>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}

/// A register without a sign and without a maximum of its own reports what its 32 bits hold. That is no limit
/// anyone set, and -1 is how the host spells "no maximum".
int toMaximum(gint64 maximum)
{
    return maximum == std::numeric_limits<quint32>::max() ? -1 : toInt(maximum);
}

float toFloat(double value)
{
    constexpr double limit = std::numeric_limits<float>::max();
    return float(qBound(-limit, value, limit));
}

/// The step of a node that gives none: the power of ten that makes about a thousand steps of its range, or 1
/// where the range is none to speak of.
double stepFor(double minimum, double maximum)
{
    const double range = maximum - minimum;
    return range > 0 && range <= 1e6 ? std::pow(10.0, std::floor(std::log10(range / 1000))) : 1;
}

/// What a category lists, and the categories in it list. They may name each other in a circle.
void collectFeatures(ArvGc *gc, const QString &name, QSet<QString> &seen, QStringList &features)
{
    if (seen.contains(name)) {
        return;
    }
    seen.insert(name);
    ArvGcNode *node = arv_gc_get_node(gc, name.toUtf8().constData());
    if (!ARV_IS_GC_CATEGORY(node)) {
        if (typeOf(node) != RuvoNodeUnknown) {
            features.append(name);
        }
        return;
    }
    for (const GSList *entry = arv_gc_category_get_features(ARV_GC_CATEGORY(node)); entry; entry = entry->next) {
        collectFeatures(gc, QString::fromUtf8(static_cast<const char *>(entry->data)), seen, features);
    }
}

ArvGcPropertyNode *findProperty(ArvGcNode *node, ArvGcPropertyNodeType type)
{
    for (ArvDomNode *child = arv_dom_node_get_first_child(ARV_DOM_NODE(node)); child;
         child = arv_dom_node_get_next_sibling(child)) {
        if (ARV_IS_GC_PROPERTY_NODE(child) && arv_gc_property_node_get_node_type(ARV_GC_PROPERTY_NODE(child)) == type) {
            return ARV_GC_PROPERTY_NODE(child);
        }
    }
    return nullptr;
}

/// The registers below `parent` that can be read at any time, because they may be cached and have one address for
/// ever: no other register has to be read to find it.
void collectCachable(ArvDomNode *parent, QVector<CachingPort::Extent> &registers)
{
    for (ArvDomNode *child = arv_dom_node_get_first_child(parent); child;
         child = arv_dom_node_get_next_sibling(child)) {
        collectCachable(child, registers);
        if (!ARV_IS_GC_REGISTER(child) || !ARV_IS_GC_FEATURE_NODE(child)
            || arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(child)) == ARV_GC_ACCESS_MODE_WO) {
            continue;
        }
        ArvGcPropertyNode *const cachable = findProperty(ARV_GC_NODE(child), ARV_GC_PROPERTY_NODE_TYPE_CACHABLE);
        if (cachable
            && arv_gc_property_node_get_cachable(cachable, ARV_GC_CACHABLE_UNDEFINED) == ARV_GC_CACHABLE_NO_CACHE) {
            continue;
        }
        Failure failure;
        const quint64 address = arv_gc_register_get_address(ARV_GC_REGISTER(child), failure.slot());
        const quint64 length = failure ? 0 : arv_gc_register_get_length(ARV_GC_REGISTER(child), failure.slot());
        if (!failure) {
            registers.append({address, address + length});
        }
    }
}

} // namespace

struct GenicamDevice::Private
{
    explicit Private(DevicePointer opened, NetworkLink *network = nullptr, CachingPort *caching = nullptr)
        : owned(std::move(opened))
        , device(owned.get())
        , link(network)
        , cache(caching)
    {
        // Both are off unless asked for, and what breaks a rule then passes in silence.
        arv_device_set_range_check_policy(device, ARV_RANGE_CHECK_POLICY_ENABLE);
        arv_device_set_access_check_policy(device, ARV_ACCESS_CHECK_POLICY_ENABLE);
    }
    Q_DISABLE_COPY(Private)

    ArvGcNode *node(const QString &name) const { return arv_device_get_feature(device, name.toUtf8().constData()); }

    long fail(Status status, const QString &name, const QString &why)
    {
        error = QStringLiteral("%1: %2").arg(name, why);
        return status;
    }

    /// Whether the node is of the type and can be accessed now: each caller asks before it touches the node,
    /// because Aravis writes into locked and unavailable nodes without a word.
    long check(const QString &name, RuvoNodeType type, bool toWrite)
    {
        ArvGcNode *const found = node(name);
        if (typeOf(found) != type) {
            return fail(NoSuchNode, name, tr("no such node of this type"));
        }
        if (toWrite && isReadOnly()) {
            return fail(NoAccess, name, tr("another program controls the camera"));
        }
        const RuvoNodeAccessMode mode = accessModeOf(found);
        if (isLost()) { // maybe only now
            return fail(DeviceFailure, name, lostReason());
        }
        const bool allowed = mode == RuvoNodeReadWrite || mode == (toWrite ? RuvoNodeWriteOnly : RuvoNodeReadOnly);
        return allowed ? long(Ok)
                       : fail(NoAccess, name, toWrite ? tr("cannot be written now") : tr("cannot be read now"));
    }
    QString lostReason() const { return link ? link->lostReason() : QString(); }
    bool isLost() const { return !lostReason().isEmpty(); }
    bool isReadOnly() const { return link && !link->isController(); }
    long writable(const QString &name, RuvoNodeType type) { return check(name, type, true); }

    long readResult(const QString &name, const Failure &failure)
    {
        return failure ? fail(DeviceFailure, name, failure.text()) : long(Ok);
    }

    /// A refusal by GenICam's own rules is about the value, everything else about the device.
    long writeResult(const QString &name, const Failure &failure)
    {
        return failure ? fail(failure.isRule() ? InvalidValue : DeviceFailure, name, failure.text()) : long(Ok);
    }

    template <typename T>
    long read(const QString &name, RuvoNodeType type, T (*get)(ArvDevice *, const char *, GError **), T &value)
    {
        if (const long status = check(name, type, false)) {
            return status;
        }
        Failure failure;
        value = get(device, name.toUtf8().constData(), failure.slot());
        return readResult(name, failure);
    }

    /// Of a node that is known to be writable.
    template <typename T>
    long write(const QString &name, void (*set)(ArvDevice *, const char *, T, GError **), T value)
    {
        Failure failure;
        set(device, name.toUtf8().constData(), value, failure.slot());
        return writeResult(name, failure);
    }

    /// Range and increment of an integer or a float. A node may do without; Aravis answers that with a default
    /// for some kinds of nodes and with an error for others.
    template <typename T>
    long readLimits(void (*readBounds)(ArvDevice *, const char *, T *, T *, GError **),
                    T (*readIncrement)(ArvDevice *, const char *, GError **), const QString &name, T &minimum,
                    T &maximum, T &increment)
    {
        const QByteArray node = name.toUtf8();
        Failure failure;
        readBounds(device, node.constData(), &minimum, &maximum, failure.slot());
        if (failure.isAbsence()) {
            minimum = std::numeric_limits<T>::lowest();
            maximum = std::numeric_limits<T>::max();
        } else if (failure) {
            return readResult(name, failure);
        }
        increment = readIncrement(device, node.constData(), failure.slot());
        if (failure.isAbsence()) {
            increment = 0;
            failure.clear();
        }
        return readResult(name, failure);
    }
    long readLimits(const QString &name, gint64 &minimum, gint64 &maximum, gint64 &increment)
    {
        return readLimits<gint64>(arv_device_get_integer_feature_bounds, arv_device_get_integer_feature_increment, name,
                                  minimum, maximum, increment);
    }
    long readLimits(const QString &name, double &minimum, double &maximum, double &increment)
    {
        return readLimits<double>(arv_device_get_float_feature_bounds, arv_device_get_float_feature_increment, name,
                                  minimum, maximum, increment);
    }

    long availableEntries(const QString &name, QList<QString> &entries)
    {
        Failure failure;
        guint count = 0;
        const char **const names =
            arv_device_dup_available_enumeration_feature_values_as_strings(device, name.toUtf8().constData(), &count,
                                                                           failure.slot());
        entries.clear();
        for (guint i = 0; names && i < count; ++i) {
            entries.append(QString::fromUtf8(names[i]));
        }
        g_free(names); // the array only: the texts are the nodes'
        return readResult(name, failure);
    }

    /// A command is done when its register, if it can be read, holds something else. Until then the camera would
    /// answer with what was before.
    void awaitCommand(const QString &name)
    {
        ArvGcPropertyNode *const target = findProperty(node(name), ARV_GC_PROPERTY_NODE_TYPE_P_VALUE);
        ArvGcPropertyNode *const given = findProperty(node(name), ARV_GC_PROPERTY_NODE_TYPE_COMMAND_VALUE);
        ArvGcNode *const value = target ? arv_gc_property_node_get_linked_node(target) : nullptr;
        if (!given || !ARV_IS_GC_INTEGER(value)
            || arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(value)) == ARV_GC_ACCESS_MODE_WO) {
            return;
        }
        Failure failure;
        const gint64 command = arv_gc_property_node_get_int64(given, failure.slot());
        for (int pause = 1; pause < kCommandTime && !failure; pause *= 2) {
            const gint64 now = arv_gc_integer_get_value(ARV_GC_INTEGER(value), failure.slot());
            cache->drop();
            if (failure || now != command) {
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(pause));
        }
    }

    const DevicePointer owned;
    ArvDevice *const device;
    NetworkLink *const link; // these are the device's; null for one in this process
    CachingPort *const cache;
    QString error;
};

std::unique_ptr<GenicamDevice> GenicamDevice::openBuiltIn(const QString &descriptionFile, QString *error, Clock clock)
{
    QString why;
    const QByteArray description = CameraDescription::read(descriptionFile, &why);
    auto camera = why.isEmpty() ? openDescription(description, &why, std::move(clock)) : nullptr;
    if (!camera) {
        *error = QStringLiteral("%1: %2").arg(CameraDescription::fileName(descriptionFile), why);
    }
    return camera;
}

std::unique_ptr<GenicamDevice> GenicamDevice::openDescription(const QByteArray &description, QString *error,
                                                              Clock clock)
{
    DevicePointer camera = newBuiltInCamera(description, std::move(clock), error);
    *error = error->simplified();
    return camera ? std::unique_ptr<GenicamDevice>(new GenicamDevice(std::make_unique<Private>(std::move(camera))))
                  : nullptr;
}

std::unique_ptr<GenicamDevice> GenicamDevice::openNetwork(const QString &address, QString *error)
{
    QString why;
    std::unique_ptr<NetworkLink> link = NetworkLink::open(address, &why);
    NetworkLink *const wire = link.get();
    auto camera = wire ? openPort(std::move(link), wire->description(), &why, wire) : nullptr;
    if (!camera) {
        *error = QStringLiteral("%1: %2").arg(address, why.simplified());
    }
    return camera;
}

std::unique_ptr<GenicamDevice> GenicamDevice::openPort(std::unique_ptr<RegisterPort> port, const QByteArray &xml,
                                                       QString *error, NetworkLink *link)
{
    CameraDescription description;
    *error = description.parse(xml).simplified();
    auto owned = std::make_unique<CachingPort>(std::move(port));
    CachingPort *const cache = owned.get();
    DevicePointer device = error->isEmpty() ? newPortDevice(std::move(owned), description.xml) : nullptr;
    if (!device) {
        *error = error->isEmpty() ? tr("it does not describe itself") : *error;
        return nullptr;
    }
    QVector<CachingPort::Extent> cachable;
    cache->setOffline(true); // an address that is found all the same is found without the camera
    collectCachable(ARV_DOM_NODE(arv_device_get_genicam(device.get())), cachable);
    cache->setOffline(false);
    cache->setCachable(std::move(cachable));
    return std::unique_ptr<GenicamDevice>(new GenicamDevice(std::make_unique<Private>(std::move(device), link, cache)));
}

std::unique_ptr<GenicamDevice> GenicamDevice::open(const QString &address, const QString &descriptionFile,
                                                   QString *error)
{
    return address.isEmpty() ? openBuiltIn(descriptionFile, error) : openNetwork(address, error);
}

GenicamDevice::GenicamDevice(std::unique_ptr<Private> implementation)
    : d(std::move(implementation))
{}

GenicamDevice::~GenicamDevice() = default;

QString GenicamDevice::lastError() const
{
    return d->error;
}

bool GenicamDevice::isReadOnly() const
{
    return d->isReadOnly();
}

QString GenicamDevice::lostReason() const
{
    return d->lostReason();
}

void GenicamDevice::onLost(std::function<void()> callback)
{
    if (d->link) {
        d->link->onLost(std::move(callback));
    }
}

void GenicamDevice::dropCache()
{
    if (d->cache) {
        d->cache->drop();
    }
}

void GenicamDevice::setCaching(bool on)
{
    if (d->cache) {
        d->cache->setCaching(on);
    }
}

quint64 GenicamDevice::roundTrips() const
{
    return d->link ? d->link->requests() : 0;
}

QStringList GenicamDevice::nodes() const
{
    QStringList features;
    QSet<QString> seen;
    collectFeatures(arv_device_get_genicam(d->device), QStringLiteral("Root"), seen, features);
    return features;
}

QString GenicamDevice::unit(const QString &name) const
{
    ArvGcNode *const found = d->node(name);
    if (ARV_IS_GC_INTEGER(found)) {
        return QString::fromUtf8(arv_gc_integer_get_unit(ARV_GC_INTEGER(found)));
    }
    return ARV_IS_GC_FLOAT(found) ? QString::fromUtf8(arv_gc_float_get_unit(ARV_GC_FLOAT(found))) : QString();
}

QString GenicamDevice::description(const QString &name) const
{
    ArvGcNode *const found = d->node(name);
    if (!ARV_IS_GC_FEATURE_NODE(found)) {
        return QString();
    }
    const char *const text = arv_gc_feature_node_get_description(ARV_GC_FEATURE_NODE(found));
    return QString::fromUtf8(text ? text : arv_gc_feature_node_get_tooltip(ARV_GC_FEATURE_NODE(found)));
}

long GenicamDevice::getParamInt(const QString &name, int &value, int &min, int &max, int &inc)
{
    gint64 current = 0;
    if (const long status = d->read(name, RuvoNodeInteger, arv_device_get_integer_feature_value, current)) {
        return status;
    }
    gint64 minimum = 0;
    gint64 maximum = 0;
    gint64 increment = 0;
    const long status = d->readLimits(name, minimum, maximum, increment);
    value = toInt(current);
    min = toInt(minimum);
    max = toMaximum(maximum);
    inc = toInt(qMax<gint64>(increment, 1));
    return status;
}

long GenicamDevice::getParamFloat(const QString &name, float &value, float &min, float &max, float &inc)
{
    double current = 0;
    if (const long status = d->read(name, RuvoNodeFloat, arv_device_get_float_feature_value, current)) {
        return status;
    }
    if (!std::isfinite(current)) {
        return d->fail(DeviceFailure, name, tr("the device holds no number"));
    }
    double minimum = 0;
    double maximum = 0;
    double increment = 0;
    const long status = d->readLimits(name, minimum, maximum, increment);
    // Where the default for "none" comes back it is the smallest double there is, which no float can hold.
    const bool hasIncrement = increment >= double(std::numeric_limits<float>::min());
    value = toFloat(current);
    min = toFloat(minimum);
    max = toFloat(maximum);
    inc = qMax(toFloat(hasIncrement ? increment : stepFor(minimum, maximum)), std::numeric_limits<float>::min());
    return status;
}

long GenicamDevice::getParamBool(const QString &name, bool &value)
{
    gboolean current = FALSE;
    const long status = d->read(name, RuvoNodeBoolean, arv_device_get_boolean_feature_value, current);
    value = current;
    return status;
}

long GenicamDevice::getParamEnum(const QString &name, QString &value, QList<QString> &entries)
{
    const char *current = nullptr;
    if (const long status = d->read(name, RuvoNodeEnumeration, arv_device_get_string_feature_value, current)) {
        return status;
    }
    if (!current) {
        return d->fail(DeviceFailure, name, tr("the device holds no entry"));
    }
    value = QString::fromUtf8(current); // at once: the text is the node's, and its next read overwrites it
    return d->availableEntries(name, entries);
}

long GenicamDevice::getParamString(const QString &name, QString &value)
{
    const char *text = nullptr; // after a failed read there is one all the same, without an end
    const long status = d->read(name, RuvoNodeString, arv_device_get_string_feature_value, text);
    value = status == Ok ? QString::fromUtf8(text) : QString();
    return status;
}

long GenicamDevice::setParamInt(const QString &name, int value)
{
    gint64 minimum = 0;
    gint64 maximum = 0;
    gint64 increment = 0;
    long status = d->writable(name, RuvoNodeInteger);
    status = status == Ok ? d->readLimits(name, minimum, maximum, increment) : status;
    if (status != Ok) {
        return status;
    }
    // Only the range is checked for us. Unsigned, because the distance from the smallest minimum does not fit otherwise.
    if (increment > 1 && (quint64(value) - quint64(minimum)) % quint64(increment) != 0) {
        return d->fail(InvalidValue, name,
                       tr("%1 is not a multiple of %2 above the minimum").arg(value).arg(increment));
    }
    return d->write<gint64>(name, arv_device_set_integer_feature_value, value);
}

long GenicamDevice::setParamFloat(const QString &name, float value)
{
    if (const long status = d->writable(name, RuvoNodeFloat)) {
        return status;
    }
    if (!std::isfinite(value)) { // which is within every range
        return d->fail(InvalidValue, name, tr("not a number"));
    }
    double minimum = 0;
    double maximum = 0;
    double increment = 0; // is advice for a float, not a rule
    if (const long status = d->readLimits(name, minimum, maximum, increment)) {
        return status;
    }
    // A bound that we handed out as a float may have been rounded to the far side of itself.
    double exact = double(value);
    if (value == toFloat(maximum)) {
        exact = maximum;
    } else if (value == toFloat(minimum)) {
        exact = minimum;
    }
    return d->write(name, arv_device_set_float_feature_value, exact);
}

long GenicamDevice::setParamBool(const QString &name, bool value)
{
    const long status = d->writable(name, RuvoNodeBoolean);
    return status == Ok ? d->write<gboolean>(name, arv_device_set_boolean_feature_value, value) : status;
}

long GenicamDevice::setParamEnum(const QString &name, const QString &value)
{
    const long status = d->writable(name, RuvoNodeEnumeration); // an entry that is not available now is refused, too
    return status == Ok ? d->write(name, arv_device_set_string_feature_value, value.toUtf8().constData()) : status;
}

long GenicamDevice::setParamString(const QString &name, const QString &value)
{
    const long status = d->writable(name, RuvoNodeString);
    if (status == Ok && value.contains(QChar(QChar::Null))) { // the device would take the text for ended there
        return d->fail(InvalidValue, name, tr("the text contains a NUL"));
    }
    return status == Ok ? d->write(name, arv_device_set_string_feature_value, value.toUtf8().constData()) : status;
}

long GenicamDevice::executeCMD(const QString &name)
{
    if (const long status = d->writable(name, RuvoNodeCommand)) {
        return status;
    }
    Failure failure;
    arv_device_execute_command(d->device, name.toUtf8().constData(), failure.slot());
    if (!failure && d->cache) {
        d->awaitCommand(name);
    }
    return d->writeResult(name, failure);
}

RuvoNodeType GenicamDevice::getNodeType(const QString &name)
{
    return typeOf(d->node(name));
}

RuvoNodeAccessMode GenicamDevice::getNodeAccessMode(const QString &name)
{
    const RuvoNodeAccessMode mode = accessModeOf(d->node(name));
    if (mode == RuvoNodeNotImplemented) {
        return mode;
    }
    if (d->isLost()) {
        return RuvoNodeNotAvailable;
    }
    if (!d->isReadOnly()) {
        return mode;
    }
    return mode == RuvoNodeReadWrite || mode == RuvoNodeReadOnly ? RuvoNodeReadOnly : RuvoNodeNotAvailable;
}
