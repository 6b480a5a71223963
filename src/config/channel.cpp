// The cameras on a recorder's channels.
#include "config/channel.h"

#include <algorithm>

#include "kov_platform/value_text.h"
#include "kov_protocol/system_config_channel.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONFIG_GET_2532_PARAM) == 5120);
static_assert(sizeof(SYSTEM_CONFIG_GET_3801_PARAM) == 888);
static_assert(sizeof(SYSTEM_CONFIG_CHANNEL_INFO) == 776);
static_assert(sizeof(SYSTEM_CONFIG_GET_3803_PARAM) == 49676);
static_assert(sizeof(SYSTEM_CONFIG_GET_3813_PARAM) == 64);

void allChannels(BodyIo& io, SYSTEM_CONFIG_GET_2532_PARAM& r) {
  io.texts({{"Ipcs_stat", r.Ipcs_stat},
            {"streamstat", r.streamstat},
            {"IpcAbility1", r.IpcAbility1},
            {"IpcProtoCol", r.IpcProtoCol},
            {"ChnFeature", r.ChnFeature},
            {"ChnDevbind", r.ChnDevbind}});
}

constexpr Message kAllChannels = {"SystemConfig_getAllChannelInfo_Message", nullptr, form<allChannels>(nullptr)};

void searchRequest(BodyIo& io, SYSTEM_CONFIG_GET_3801_PARAM& r) {
  io.element("REQUEST_PARAM", {{"SearchDuration", r.SearchDuration}});
}

void foundCamera(BodyIo& io, SYSTEM_CONFIG_GET_3801_PARAM& r) {
  io.element("IPCINFO", {{"Protocol", r.Protocol},
                         {"IPAddress", r.IPAddress},
                         {"Username", r.Username},
                         {"Password", r.Password},
                         {"CtrlPort", r.CtrlPort},
                         {"SN", r.SN},
                         {"OsdName", r.OsdName},
                         {"IpcVer", r.IpcVer},
                         {"MacAddress", r.MacAddress},
                         {"Netmask", r.Netmask},
                         {"Gateway", r.Gateway}});
}

constexpr Message kStartSearch = {"SystemConfig_NvrChannelStartSearchipc_Message", request<searchRequest>,
                                  form<foundCamera>("IPCINFO")};

void listedChannel(BodyIo& io, SYSTEM_CONFIG_CHANNEL_INFO& r) {
  io.element("ChannelInfo", {{"ChannelId", r.ChannelId},
                             {"IpAddr", r.IpAddr},
                             {"DevMode", r.DevMode},
                             {"Protocol", r.Protocol},
                             {"ChannnelName", r.ChannnelName},
                             {"Status", r.Status},
                             attr("CtrlPort", r.CtrlPort).blankBeforeEquals(),
                             {"Username", r.Username},
                             {"Password", r.Password},
                             {"RtspDomain", r.RtspDomain},
                             {"RtspMainResPath", r.RtspMainResPath},
                             {"RtspMainResPort", r.RtspMainResPort},
                             {"RtspSubResPath", r.RtspSubResPath},
                             {"RtspSubResPort", r.RtspSubResPort}});
}

void channelListRequest(BodyIo& io, SYSTEM_CONFIG_GET_3803_PARAM& r) {
  io.elementWhen(isSet(r.DivideResponse), "REQUEST_PARAM", {{"DivideResponse", r.DivideResponse}});
}

// From the first used slot to the next empty one, `most` slots at most.
void writeUsedChannels(BodyIo& io, SYSTEM_CONFIG_GET_3803_PARAM& r, std::int32_t most) {
  const auto used = [](const SYSTEM_CONFIG_CHANNEL_INFO& slot) { return isSet(slot.ChannelId); };
  SYSTEM_CONFIG_CHANNEL_INFO* const end = r.Channels + SYSTEM_CONFIG_CHANNELS;
  for (auto* slot = std::find_if(r.Channels, end, used); slot != end && most > 0 && used(*slot); ++slot, --most) {
    listedChannel(io, *slot);
  }
}

// The counts are written without an element around them and are plain text to whoever reads the document; peers that
// want them read put them into a REQUEST_PARAM.
void channelList(BodyIo& io, SYSTEM_CONFIG_GET_3803_PARAM& r) {
  if (io.reading()) {
    io.element("REQUEST_PARAM",
               {{"DivideResponse", r.DivideResponse}, {"ChannelCount", r.ChannelCount}, {"EndPackage", r.EndPackage}});
    io.listOf<listedChannel>("ChannelInfo", r.Channels, SYSTEM_CONFIG_CHANNELS);
    return;
  }
  const bool paged = r.DivideResponse > 0;
  io.attributes({{"ChannelCount", r.ChannelCount}, attr("EndPackage", r.EndPackage).when(paged)});
  writeUsedChannels(io, r, paged ? r.DivideResponse : r.ChannelCount);
}

constexpr Message kChannelList = {"SystemConfig_NvrChannelGetChannelList_Message", form<channelListRequest>(nullptr),
                                  form<channelList>(nullptr)};

// A response has the same element with other attributes, so one reading serves both.
void addedChannel(BodyIo& io, SYSTEM_CONFIG_CHANNEL_INFO& r) {
  io.element("ChannelInfo", {{"ChannelId", r.ChannelId},
                             {"IPAddress", r.IpAddr},
                             {"DevMode", r.DevMode},
                             {"Protocol", r.Protocol},
                             attr("CtrlPort", r.CtrlPort).blankBeforeEquals(),
                             {"Username", r.Username},
                             {"Password", r.Password},
                             {"RtspDomain", r.RtspDomain},
                             {"RtspMainResPath", r.RtspMainResPath},
                             {"RtspMainResPort", r.RtspMainResPort},
                             {"RtspSubResPath", r.RtspSubResPath},
                             {"RtspSubResPort", r.RtspSubResPort},
                             attr("Result", r.Status).readOnly()});
}

void addingResult(BodyIo& io, SYSTEM_CONFIG_CHANNEL_INFO& r) {
  io.element("ChannelInfo", {{"ChannelId", r.ChannelId}, {"IPAddress", r.IpAddr}, {"Result", r.Status}});
}

void addRequest(BodyIo& io, SYSTEM_CONFIG_SET_3804_PARAM& r) {
  io.list<addedChannel>("ChannelInfo", r.Channels, r.ChannelCount);
}

void addResponse(BodyIo& io, SYSTEM_CONFIG_SET_3804_PARAM& r) {
  io.list<addingResult>("ChannelInfo", r.Channels, r.ChannelCount);
}

constexpr Message kAddChannel = Message("SystemConfig_NvrChannelAddChannel_Message", form<addRequest>("ChannelInfo"),
                                        form<addResponse>("ChannelInfo"))
                                    .requestFirst();

void delChannel(BodyIo& io, SYSTEM_CONFIG_SET_3805_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId", r.ChannelId}});
}

void switchChannel(BodyIo& io, SYSTEM_CONFIG_SET_3806_PARAM& r) {
  io.element("REQUEST_PARAM", {{"ChannelId1", r.ChannelId1}, {"ChannelId2", r.ChannelId2}});
}

void picsSelect(BodyIo& io, SYSTEM_CONFIG_SET_3807_PARAM& r) { io.element("REQUEST_PARAM", {{"PicNum", r.PicNum}}); }

void picsPage(BodyIo& io, SYSTEM_CONFIG_SET_3808_PARAM& r) {
  io.element("REQUEST_PARAM", {{"PrevOrNext", r.PrevOrNext}});
}

constexpr Message kDelChannel = {"SystemConfig_NvrChannelDelChannel_Message", request<delChannel>, nullptr};
constexpr Message kSwitchChannel = {"SystemConfig_NvrChannelSwitchChannel_Message", request<switchChannel>, nullptr};
constexpr Message kPicsSelect = {"SystemConfig_NvrChannelPicsSelect_Message", request<picsSelect>, nullptr};
constexpr Message kPicsPage = {"SystemConfig_NvrChannelPicsPageChange_Message", request<picsPage>, nullptr};

// Responses of 3809 use the request's element, so one reading serves both.
void addressChange(BodyIo& io, const char* element, SYSTEM_CONFIG_SET_3809_PARAM& r) {
  io.element(element, {{"Protocol", r.Protocol},
                       {"IPAddressOld", r.IPAddressOld},
                       {"IPAddressNew", r.IPAddressNew},
                       {"Username", r.Username},
                       {"Password", r.Password},
                       {"SN", r.SN},
                       {"MacAddress", r.MacAddress},
                       {"Netmask", r.Netmask},
                       {"Gateway", r.Gateway},
                       {"DNS1", r.DNS1},
                       {"DNS2", r.DNS2},
                       {"CtrlPort", r.CtrlPort},
                       attr("IsChangIP", r.IsChangIP).readOnly()});
}

void oneAddressChange(BodyIo& io, SYSTEM_CONFIG_SET_3809_PARAM& r) { addressChange(io, "REQUEST_PARAM", r); }

void batchedAddressChange(BodyIo& io, SYSTEM_CONFIG_SET_3809_PARAM& r) { addressChange(io, "ChannelInfo", r); }

void addressChanged(BodyIo& io, SYSTEM_CONFIG_SET_3809_PARAM& r) {
  io.element("REQUEST_PARAM", {{"IsChangIP", r.IsChangIP},
                               {"IPAddressOld", r.IPAddressOld},
                               {"IPAddressNew", r.IPAddressNew},
                               {"Netmask", r.Netmask},
                               {"Gateway", r.Gateway}});
}

void batchModifyRequest(BodyIo& io, SYSTEM_CONFIG_SET_3810_PARAM& r) {
  io.list<batchedAddressChange>("ChannelInfo", r.Cameras, r.ChannelCount);
}

void batchModifyResponse(BodyIo& io, SYSTEM_CONFIG_SET_3810_PARAM& r) {
  io.list<addressChanged>("REQUEST_PARAM", r.Cameras, r.ChannelCount);
}

constexpr Message kModifyIp = Message("SystemConfig_NvrChannelModifyIpcIp_Message", request<oneAddressChange>,
                                      form<addressChanged>("REQUEST_PARAM"))
                                  .requestFirst();
constexpr Message kBatchModifyIp =
    Message("SystemConfig_NvrChannelBatchModifyIpcIp_Message", form<batchModifyRequest>("ChannelInfo"),
            form<batchModifyResponse>("REQUEST_PARAM"))
        .reportsMissing("ChannelInfo");

void cameraAddress(BodyIo& io, SYSTEM_CONFIG_CAMERA_ADDRESS& r) {
  io.element("ChannelInfo", {{"Protocol", r.Protocol},
                             {"IPAddress", r.IPAddress},
                             {"SN", r.SN},
                             {"Netmask", r.Netmask},
                             {"Gateway", r.Gateway},
                             {"CtrlPort", r.CtrlPort}});
}

void batchModifyV2(BodyIo& io, SYSTEM_CONFIG_SET_3812_PARAM& r) {
  io.element("REQUEST_PARAM", {{"Username", r.Username},
                               {"Password", r.Password},
                               {"IPAddressStart", r.IPAddressStart},
                               {"Netmask", r.Netmask},
                               {"Gateway", r.Gateway}});
  io.list<cameraAddress>("ChannelInfo", r.Cameras, r.ChannelCount);
}

constexpr Message kBatchModifyIpV2 = {"SystemConfig_NvrChannelBatchModifyIpcIpV2_Message", request<batchModifyV2>,
                                      nullptr};

void deletedChannel(BodyIo& io, SYSTEM_CONFIG_CHANNEL_ID& r) {
  io.element("ChannelInfo", {{"ChannelId", r.ChannelId}});
}

// The count stands outside any element, as that of the channel list does.
void batchDel(BodyIo& io, SYSTEM_CONFIG_SET_3811_PARAM& r) {
  if (io.reading()) {
    io.element("REQUEST_PARAM", {{"ChannelCount", r.ChannelCount}});
  } else {
    io.attributes({{"ChannelCount", r.ChannelCount}});
  }
  io.listOf<deletedChannel>("ChannelInfo", r.Channels, r.ChannelCount);
}

constexpr Message kBatchDel = {"SystemConfig_NvrChannelBatchDelIpc_Message", form<batchDel>(nullptr), nullptr};

using SearchModes = SYSTEM_CONFIG_SEARCH_MODE[SYSTEM_CONFIG_SEARCH_MODES];

void writeModes(BodyWriter& body, const SearchModes& modes) {
  body.literal("SearchModeList=\"");
  for (const SYSTEM_CONFIG_SEARCH_MODE& entry : modes) {
    if (!isSet(entry.Mode)) break;
    if (&entry != modes) body.character(',');
    body.decimal(entry.Mode);
  }
  body.literal("\"\n");
}

void readModes(const ElementReader& element, SearchModes& modes) {
  const char* list = element.attribute("SearchModeList");
  for (SYSTEM_CONFIG_SEARCH_MODE& entry : modes) {
    if (!scanInt(list, entry.Mode) || *list++ != ',') return;
  }
}

void getAddMode(BodyIo& io, SYSTEM_CONFIG_GET_3813_PARAM& r) {
  BodyIo config = io.enter("SearchIPCCfg", "<SearchIPCCfg\n");
  if (config.writing()) {
    writeModes(config.writer(), r.SearchModeList);
  } else {
    readModes(config.reader(), r.SearchModeList);
  }
  config.attributes({{"SearchMode", r.SearchMode}});
  config.text("/>\n");
}

void setAddMode(BodyIo& io, SYSTEM_CONFIG_GET_3813_PARAM& r) {
  io.element("SearchIPCCfg", {{"SearchMode", r.SearchMode}});
}

constexpr Message kGetAddMode = {"SystemConfig_NvrChannelGetAddMode_Message", nullptr, form<getAddMode>("SearchIPCCfg"),
                                 Direction::ResponseIs13};
constexpr Message kSetAddMode = {"SystemConfig_NvrChannelSetAddMode_Message", form<setAddMode>("SearchIPCCfg"),
                                 nullptr};

// 3802 is reserved and stands beside the dispatchers.
constexpr CodeRow kRows[] = {
    {2532, &kAllChannels}, {3801, &kStartSearch},   {3803, &kChannelList}, {3804, &kAddChannel},
    {3805, &kDelChannel},  {3806, &kSwitchChannel}, {3807, &kPicsSelect},  {3808, &kPicsPage},
    {3809, &kModifyIp},    {3810, &kBatchModifyIp}, {3811, &kBatchDel},    {3812, &kBatchModifyIpV2},
    {3813, &kGetAddMode},  {3814, &kSetAddMode},
};

}  // namespace

constexpr CodeGroup kChannelCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_2532_PARAM_init(SYSTEM_CONFIG_GET_2532_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_3801_PARAM_init(SYSTEM_CONFIG_GET_3801_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_3803_PARAM_init(SYSTEM_CONFIG_GET_3803_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3804_PARAM_init(SYSTEM_CONFIG_SET_3804_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3805_PARAM_init(SYSTEM_CONFIG_SET_3805_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3806_PARAM_init(SYSTEM_CONFIG_SET_3806_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3807_PARAM_init(SYSTEM_CONFIG_SET_3807_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3808_PARAM_init(SYSTEM_CONFIG_SET_3808_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3809_PARAM_init(SYSTEM_CONFIG_SET_3809_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3810_PARAM_init(SYSTEM_CONFIG_SET_3810_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3811_PARAM_init(SYSTEM_CONFIG_SET_3811_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3812_PARAM_init(SYSTEM_CONFIG_SET_3812_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_3813_PARAM_init(SYSTEM_CONFIG_GET_3813_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_3814_PARAM_init(SYSTEM_CONFIG_GET_3813_PARAM* record) {
  return SYSTEM_CONFIG_GET_3813_PARAM_init(record);
}

int SystemConfig_getAllChannelInfo_MessageAnalysis(const char* xml, void** result) {
  return kov::kAllChannels.analyse(xml, result);
}
int SystemConfig_NvrChannelStartSearchipc_MessageAnalysis(const char* xml, void** result) {
  return kov::kStartSearch.analyse(xml, result);
}
int SystemConfig_NvrChannelGetChannelList_MessageAnalysis(const char* xml, void** result) {
  return kov::kChannelList.analyse(xml, result);
}
int SystemConfig_NvrChannelAddChannel_MessageAnalysis(const char* xml, void** result) {
  return kov::kAddChannel.analyse(xml, result);
}
int SystemConfig_NvrChannelDelChannel_MessageAnalysis(const char* xml, void** result) {
  return kov::kDelChannel.analyse(xml, result);
}
int SystemConfig_NvrChannelSwitchChannel_MessageAnalysis(const char* xml, void** result) {
  return kov::kSwitchChannel.analyse(xml, result);
}
int SystemConfig_NvrChannelPicsSelect_MessageAnalysis(const char* xml, void** result) {
  return kov::kPicsSelect.analyse(xml, result);
}
int SystemConfig_NvrChannelPicsPageChange_MessageAnalysis(const char* xml, void** result) {
  return kov::kPicsPage.analyse(xml, result);
}
int SystemConfig_NvrChannelModifyIpcIp_MessageAnalysis(const char* xml, void** result) {
  return kov::kModifyIp.analyse(xml, result);
}
int SystemConfig_NvrChannelBatchModifyIpcIp_MessageAnalysis(const char* xml, void** result) {
  return kov::kBatchModifyIp.analyse(xml, result);
}
int SystemConfig_NvrChannelBatchModifyIpcIpV2_MessageAnalysis(const char* xml, void** result) {
  return kov::kBatchModifyIpV2.analyse(xml, result);
}
int SystemConfig_NvrChannelBatchDelIpc_MessageAnalysis(const char* xml, void** result) {
  return kov::kBatchDel.analyse(xml, result);
}
int SystemConfig_NvrChannelGetAddMode_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetAddMode.analyse(xml, result);
}
int SystemConfig_NvrChannelSetAddMode_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetAddMode.analyse(xml, result);
}
