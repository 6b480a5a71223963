#include "kov_protocol/device_report.h"

#include "trials.h"

namespace kov::test {
namespace {

const std::string kType = DEVICE_REPORT_MESSAGE_TYPE;

class DeviceReportTest : public WireTest {};

TEST_F(DeviceReportTest, PositionEndsBeforeTheReservedWord) {
  EXPECT_STREQ(analysed<DEVICE_REPORT_3900_PARAM>(kType, "3900", golden("reports/status.txt")).streamstat,
               "1,0 & more");
  auto record = analysed<DEVICE_REPORT_3901_PARAM>(kType, "3901", golden("reports/position.txt"));
  EXPECT_EQ((Numbers{record.y, record.linkage, record.reserved,
                     analysed<DEVICE_REPORT_3901_PARAM>(kType, "3901", "<xml><x>5</x></xml>").mul}),
            (Numbers{-2, 0, 0, -1}));
  record.reserved = 77;
  EXPECT_EQ(DEVICE_REPORT_3901_PARAM_init(&record), 0);
  for (const std::int32_t value : {record.x, record.y, record.mul, record.maxMul, record.linkage}) EXPECT_EQ(value, -1);
  EXPECT_EQ(record.reserved, 77);
  EXPECT_EQ(DEVICE_REPORT_3901_PARAM_init(nullptr), KOV_ERROR_NULL);
}

}  // namespace
}  // namespace kov::test
