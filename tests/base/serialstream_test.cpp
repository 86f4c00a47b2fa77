#include "base/serialstream.h"

#include "base/numeric.h"
#include "base/serializable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace vxbase {
namespace {

ISerialStream reader(const std::string& bytes)
{
    return {bytes.data(), bytes.size()};
}

TEST(SerialStream, readsBackWhatWasWrittenInOrder)
{
    OSerialStream out;
    out << true << false << -0.0f << std::numeric_limits<float>::infinity() << -1 << std::numeric_limits<int>::min()
        << 7u;
    ISerialStream in = reader(out.bytes());
    bool yes = false;
    bool no = true;
    float zero = 1;
    float infinity = 0;
    int minusOne = 0;
    int lowest = 0;
    int seven = 0;
    in >> yes >> no >> zero >> infinity >> minusOne >> lowest >> seven;
    EXPECT_TRUE(yes);
    EXPECT_FALSE(no);
    EXPECT_TRUE(zero == 0 && std::signbit(zero));
    EXPECT_EQ(infinity, std::numeric_limits<float>::infinity());
    EXPECT_EQ(minusOne, -1);
    EXPECT_EQ(lowest, std::numeric_limits<int>::min());
    EXPECT_EQ(seven, 7);
    EXPECT_THROW(in.readInt(), std::out_of_range);
}

TEST(SerialStream, writesTheSameBytesOnEveryMachine)
{
    OSerialStream out;
    out << true << 1.0f << -2 << 0x01020304u;
    EXPECT_EQ(out.bytes(), std::string("b\x01"
                                       "f\x00\x00\x80\x3F"
                                       "i\xFE\xFF\xFF\xFF"
                                       "u\x04\x03\x02\x01",
                                       17));
}

TEST(SerialStream, readingAnotherTypeThrowsAndConsumesNothing)
{
    OSerialStream out;
    out << 3 << true;
    ISerialStream in = reader(out.bytes());
    EXPECT_THROW(in.readFloat(), std::invalid_argument);
    EXPECT_THROW(in.readBool(), std::invalid_argument);
    EXPECT_EQ(in.readInt(), 3);
    EXPECT_THROW(in.readInt(), std::invalid_argument);
    EXPECT_TRUE(in.readBool());
}

TEST(SerialStream, anUnsignedNumberIsReadAsIntOnlyIfItFits)
{
    OSerialStream out;
    out << 0x7FFFFFFFu << 0x80000000u;
    ISerialStream in = reader(out.bytes());
    EXPECT_EQ(in.readInt(), 0x7FFFFFFF);
    EXPECT_THROW(in.readInt(), std::out_of_range);
}

TEST(SerialStream, truncatedDataThrow)
{
    OSerialStream out(OSerialStream::Comments::written);
    out.comment("version");
    out << 5;
    const std::string all = out.bytes();
    for (std::size_t size = 0; size < all.size(); ++size) {
        ISerialStream in(all.data(), size);
        EXPECT_THROW(in.readInt(), std::logic_error) << size;
    }
    EXPECT_EQ(reader(all).readInt(), 5);
}

TEST(SerialStream, readersIgnoreComments)
{
    OSerialStream plain;
    OSerialStream commented(OSerialStream::Comments::written);
    for (OSerialStream* out : {&plain, &commented}) {
        out->comment("first");
        *out << 1;
        out->comment("");
        out->comment("second");
        out->comment("third");
        *out << 2.0f;
        out->comment("end");
    }
    EXPECT_EQ(plain.bytes().find("first"), std::string::npos);
    EXPECT_NE(commented.bytes().find("second"), std::string::npos);
    for (const OSerialStream* out : {&plain, &commented}) {
        ISerialStream in = reader(out->bytes());
        EXPECT_EQ(in.readInt(), 1);
        EXPECT_EQ(in.readFloat(), 2.0f);
        EXPECT_THROW(in.readFloat(), std::out_of_range);
    }
}

TEST(SerialStream, requireNumbersRefusesCountsBeyondTheRemainingBytes)
{
    OSerialStream out;
    out << 1 << 2.0f << 3.0f;
    ISerialStream in = reader(out.bytes());
    in.readInt();
    EXPECT_NO_THROW(in.requireNumbers(2));
    EXPECT_THROW(in.requireNumbers(3), std::out_of_range);
    EXPECT_THROW(in.requireNumbers(-1), std::out_of_range);
    EXPECT_THROW(in.requireNumbers(std::numeric_limits<std::int64_t>::max()), std::out_of_range);
}

class Sample : public Serializable {
public:
    void serialize(OSerialStream& out, Prop&) const override { out << m_value; }
    void deserialize(ISerialStream& in) override { in >> m_value; }
    std::string getTypeName() const override { return "Sample"; }

    int m_value = 0;
};

TEST(Serializable, checksItsTypeByNameAndSurvivesARoundTrip)
{
    Sample sample;
    sample.m_value = 42;
    OSerialStream out;
    Prop prop;
    sample.serialize(out, prop);
    Sample copy;
    ISerialStream in = reader(out.bytes());
    copy.deserialize(in);
    EXPECT_EQ(copy.m_value, 42);
    EXPECT_TRUE(copy.isOfType("Sample"));
    EXPECT_FALSE(copy.isOfType("sample"));
}

TEST(Numeric, distinguishesFiniteFromOtherValues)
{
    EXPECT_TRUE(vxIsNaNorInf(vxGetInf()));
    EXPECT_TRUE(vxIsNaNorInf(-vxGetInf()));
    EXPECT_TRUE(vxIsNaNorInf(std::nan("")));
    EXPECT_FALSE(vxIsNaNorInf(std::numeric_limits<double>::max()));
    EXPECT_FALSE(vxIsNaNorInf(std::numeric_limits<double>::denorm_min()));
}

} // namespace
} // namespace vxbase
