// Arbitrary bytes as the serial form of a record, after one byte for its class: the record must refuse them with an
// exception, or take values that it writes and reads again unchanged. Memory that is allocated for a count that the
// bytes cannot have would exceed the limit that './run fuzz' sets.

#include "base/exception.h"
#include "base/serialstream.h"
#include "datacarrier/boundingbox2d.h"
#include "datacarrier/boundingbox3d.h"
#include "datacarrier/curve3d.h"
#include "datacarrier/sheet3d.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

template <class Record>
bool read(Record& record, const void* bytes, std::size_t size)
{
    try {
        vxbase::ISerialStream in(bytes, size);
        record.deserialize(in);
        return true;
    } catch (const vxbase::Exception&) {
        return false;
    } catch (const std::out_of_range&) {
        return false;
    } catch (const std::invalid_argument&) {
        return false;
    }
}

template <class Record>
std::string bytesOf(const Record& record)
{
    vxbase::OSerialStream out(vxbase::OSerialStream::Comments::written);
    vxbase::Prop prop;
    record.serialize(out, prop);
    return out.bytes();
}

template <class Record>
void check(const std::uint8_t* bytes, std::size_t size)
{
    Record record;
    if (read(record, bytes, size)) {
        const std::string written = bytesOf(record);
        Record again;
        if (!read(again, written.data(), written.size()) || bytesOf(again) != written) {
            std::abort();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    if (size > 0) {
        using Check = void (*)(const std::uint8_t*, std::size_t);
        constexpr Check checks[] = {check<vxdatacarrier::BoundingBox2D>, check<vxdatacarrier::BoundingBox3D>,
                                    check<vxdatacarrier::Sheet3D>, check<vxdatacarrier::Curve3D>};
        checks[bytes[0] % std::size(checks)](bytes + 1, size - 1);
    }
    return 0;
}
