#include "files/binary_cursor.h"

#include "files/faults.h"

#include <string>

namespace dorvan::test {

// Positions count from 1.
TEST(BinaryCursor, ReachesTheLastPositionOfSixteenBitsAndNoFurther) {
    std::string bytes(40000, ' ');
    bytes[32766] = '\x34';
    bytes[32767] = '\x12';
    BinaryCursor cursor(bytes, CodePage());
    cursor.MoveTo(32767);
    EXPECT_EQ(cursor.Int16(), 0x1234); // what starts there may well end behind it
    EXPECT_EQ(faultOf([&] { cursor.MoveTo(32768); }),
              "Byte 32768: positions past 32767 are out of range. File: f");
    cursor.ExpectRoomFor(32767, 4);
    EXPECT_EQ(faultOf([&] { cursor.ExpectRoomFor(32768, 1); }),
              "Byte 32768: positions past 32767 are out of range. File: f");
}

} // namespace dorvan::test
