// Time and users of cameras and recorders, and a recorder's general settings and cloud password.
#include "config/general.h"

#include "kov_protocol/system_config_general.h"

namespace kov {
namespace {

static_assert(sizeof(SYSTEM_CONFIG_GET_202_PARAM) == 496);

void cameraTime(BodyIo& io, SYSTEM_CONFIG_GET_202_PARAM& r) {
  BodyIo time = io.enter("TimeConfig", "<TimeConfig\n");
  time.attributes({{"TimeMode", r.TimeMode}, {"TimeZone", r.TimeZone}, attr("Time", r.Time).ifSet()});
  time.text(">\n");
  time.element("NTPConfig",
               {{"ServerIP", r.ServerIP}, {"ServerPort", r.ServerPort}, {"RefreshInterval", r.RefreshInterval}});
  time.element("DST", {{"Enable", r.Enable}, {"StartTime", r.StartTime}, {"EndTime", r.EndTime}, {"Delta", r.Delta}});
  time.text("</TimeConfig>\n");
}

constexpr Message kGetIpcTime = {"SystemConfig_getIpcTimeset_Message", nullptr, form<cameraTime>("TimeConfig")};
constexpr Message kSetIpcTime = {"SystemConfig_setIpcTimeset_Message", form<cameraTime>("TimeConfig"), nullptr};

// A blank follows the name of these elements, and of the recorder's time below.
constexpr char kAccountOpening[] = "<Account \n";

void cameraAccount(BodyIo& io, SYSTEM_CONFIG_IPC_ACCOUNT& r) {
  io.element("Account", kAccountOpening,
             {{"Username", r.Username}, {"Password", r.Password}, {"Group", r.Group}, {"Status", r.Status}});
}

void cameraUsers(BodyIo& io, SYSTEM_CONFIG_GET_203_PARAM& r) {
  BodyIo users = io.enter("UserConfig");
  users.list<cameraAccount>("Account", r.Accounts, r.AccountCount);
  users.text("</UserConfig>\n");
}

constexpr Message kGetIpcUsers = {"SystemConfig_getIpcUserCfg_Message", nullptr, form<cameraUsers>("UserConfig")};
constexpr Message kSetIpcUsers = {"SystemConfig_setIpcUserCfg_Message", form<cameraUsers>("UserConfig"), nullptr};

void generalAnswer(BodyIo& io, SYSTEM_CONFIG_GET_2500_PARAM& r) {
  io.element("GeneralConfig", {{"Language", r.Language},
                               {"LanguageList", r.LanguageList},
                               {"Transparency", r.Transparency},
                               {"DevID", r.DevID},
                               {"Resolution", r.Resolution},
                               {"ResolutionList", r.ResolutionList},
                               {"GuideEnable", r.GuideEnable}});
}

// What can be chosen from is the recorder's to tell.
void generalSetting(BodyIo& io, SYSTEM_CONFIG_GET_2500_PARAM& r) {
  io.element("GeneralConfig", {{"Language", r.Language},
                               {"Transparency", r.Transparency},
                               {"DevID", r.DevID},
                               {"Resolution", r.Resolution},
                               {"GuideEnable", r.GuideEnable}});
}

constexpr Message kGetGeneral = {"SystemConfig_getGeneralConfig_Message", nullptr,
                                 form<generalAnswer>("GeneralConfig")};
constexpr Message kSetGeneral = {"SystemConfig_setGeneralConfig_Message", form<generalSetting>("GeneralConfig"),
                                 nullptr};

void recorderTime(BodyIo& io, SYSTEM_CONFIG_GET_2505_PARAM& r) {
  BodyIo time = io.enter("TimeConfig", "<TimeConfig \n");
  time.attributes({{"Enable", r.Enable}, {"Timezone", r.Timezone}, {"Format", r.Format}, {"Time", r.Time}});
  time.text(">\n");
  time.element("SummerTime", "<SummerTime \n",
               {{"Enable", r.SummerEnable},
                {"OffSet", r.OffSet},
                attr("WeekStartTime", r.WeekStartTime).separated(':').padded(' '),
                attr("WeekEndTime", r.WeekEndTime).separated(':').padded(' ')});
  time.text("</TimeConfig>\n");
}

constexpr Message kGetTime = {"SystemConfig_getTimeConfig_Message", nullptr, form<recorderTime>("TimeConfig")};
constexpr Message kSetTime = {"SystemConfig_setTimeConfig_Message", form<recorderTime>("TimeConfig"), nullptr};

void accountFields(BodyIo& account, SYSTEM_CONFIG_NVR_ACCOUNT& r) {
  account.attributes({{"Username", r.Username},
                      {"Password", r.Password},
                      {"Status", r.Status},
                      {"LoginStat", r.LoginStat},
                      {"Email", r.Email},
                      {"LocalAuthority", r.LocalAuthority},
                      {"RemoteAuthority", r.RemoteAuthority}});
  account.text("/>\n");
}

void listedAccount(BodyIo& io, SYSTEM_CONFIG_NVR_ACCOUNT& r) {
  BodyIo account = io.enter("Account", kAccountOpening);
  accountFields(account, r);
}

void changedAccount(BodyIo& io, SYSTEM_CONFIG_NVR_ACCOUNT& r) {
  BodyIo account = io.enter("Account", kAccountOpening);
  account.attributes({{"OperationType", r.OperationType}});
  accountFields(account, r);
}

// The start tag is one line, with a blank before its end.
void usersAnswer(BodyIo& io, SYSTEM_CONFIG_GET_2510_PARAM& r) {
  BodyIo users = io.enter("UserConfig", "<UserConfig ");
  users.attributes({attr("MaxUserNum", r.MaxUserNum).thenBlank(), attr("UserNum", r.UserNum).thenBlank()});
  users.text(">\n");
  const std::int32_t accounts = users.listOf<listedAccount>("Account", r.Accounts, r.UserNum);
  if (io.reading() && !isSet(r.UserNum)) r.UserNum = accounts;
  users.text("</UserConfig>\n");
}

void usersSetting(BodyIo& io, SYSTEM_CONFIG_GET_2510_PARAM& r) {
  BodyIo users = io.enter("UserConfig");
  users.list<changedAccount>("Account", r.Accounts, r.UserNum);
  users.text("</UserConfig>\n");
}

constexpr Message kGetUsers = {"SystemConfig_getUserConfig_Message", nullptr, form<usersAnswer>("UserConfig")};
constexpr Message kSetUsers = {"SystemConfig_setUserConfig_Message", form<usersSetting>("UserConfig"), nullptr};

// The mode chooses between two forms and does not travel; the password's name tells it.
void cloudAnswer(BodyIo& io, SYSTEM_CONFIG_GET_2515_PARAM& r) {
  constexpr std::int32_t kNotifying = 1;
  const bool notifying = r.Mode == kNotifying;
  io.element("CloudConfig", {attr("FactoryResetNotify", r.FactoryResetNotify).when(notifying),
                             {"PasswdEncode", r.PasswdEncode},
                             attr("CloudPasswd", r.CloudPasswd).when(notifying),
                             attr("Passwd", r.Passwd).when(!notifying)});
  if (io.reading() && io.reader().child("CloudConfig").attribute("CloudPasswd") != nullptr) r.Mode = kNotifying;
}

void cloudSetting(BodyIo& io, SYSTEM_CONFIG_GET_2515_PARAM& r) {
  io.element("CloudConfig", {attr("Passwd", r.Passwd).thenNothing()});
}

constexpr Message kGetCloud = {"SystemConfig_getCloudConfig_Message", nullptr, form<cloudAnswer>("CloudConfig")};
constexpr Message kSetCloud = {"SystemConfig_setCloudConfig_Message", form<cloudSetting>("CloudConfig"), nullptr};

constexpr CodeRow kRows[] = {
    {202, &kGetIpcTime},  {5007, &kGetIpcTime}, {222, &kSetIpcTime}, {203, &kGetIpcUsers}, {223, &kSetIpcUsers},
    {2500, &kGetGeneral}, {2520, &kSetGeneral}, {2505, &kGetTime},   {2525, &kSetTime},    {2510, &kGetUsers},
    {2530, &kSetUsers},   {2515, &kGetCloud},   {2535, &kSetCloud},
};

}  // namespace

constexpr CodeGroup kGeneralCodes = kRows;

}  // namespace kov

int SYSTEM_CONFIG_GET_202_PARAM_init(SYSTEM_CONFIG_GET_202_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_203_PARAM_init(SYSTEM_CONFIG_GET_203_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_222_PARAM_init(SYSTEM_CONFIG_GET_202_PARAM* record) {
  return SYSTEM_CONFIG_GET_202_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_223_PARAM_init(SYSTEM_CONFIG_GET_203_PARAM* record) {
  return SYSTEM_CONFIG_GET_203_PARAM_init(record);
}
int SYSTEM_CONFIG_GET_2500_PARAM_init(SYSTEM_CONFIG_GET_2500_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_2505_PARAM_init(SYSTEM_CONFIG_GET_2505_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_2510_PARAM_init(SYSTEM_CONFIG_GET_2510_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_GET_2515_PARAM_init(SYSTEM_CONFIG_GET_2515_PARAM* record) { return kov::fillDefaults(record); }
int SYSTEM_CONFIG_SET_2520_PARAM_init(SYSTEM_CONFIG_GET_2500_PARAM* record) {
  return SYSTEM_CONFIG_GET_2500_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_2525_PARAM_init(SYSTEM_CONFIG_GET_2505_PARAM* record) {
  return SYSTEM_CONFIG_GET_2505_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_2530_PARAM_init(SYSTEM_CONFIG_GET_2510_PARAM* record) {
  return SYSTEM_CONFIG_GET_2510_PARAM_init(record);
}
int SYSTEM_CONFIG_SET_2535_PARAM_init(SYSTEM_CONFIG_GET_2515_PARAM* record) {
  return SYSTEM_CONFIG_GET_2515_PARAM_init(record);
}

int SystemConfig_getIpcTimeset_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIpcTime.analyse(xml, result);
}
int SystemConfig_setIpcTimeset_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIpcTime.analyse(xml, result);
}
int SystemConfig_getIpcUserCfg_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetIpcUsers.analyse(xml, result);
}
int SystemConfig_setIpcUserCfg_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetIpcUsers.analyse(xml, result);
}
int SystemConfig_getGeneralConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetGeneral.analyse(xml, result);
}
int SystemConfig_setGeneralConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetGeneral.analyse(xml, result);
}
int SystemConfig_getTimeConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetTime.analyse(xml, result);
}
int SystemConfig_setTimeConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetTime.analyse(xml, result);
}
int SystemConfig_getUserConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetUsers.analyse(xml, result);
}
int SystemConfig_setUserConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetUsers.analyse(xml, result);
}
int SystemConfig_getCloudConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kGetCloud.analyse(xml, result);
}
int SystemConfig_setCloudConfig_MessageAnalysis(const char* xml, void** result) {
  return kov::kSetCloud.analyse(xml, result);
}
