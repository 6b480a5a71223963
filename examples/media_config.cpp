// A client reads a camera's media configuration, changes resolution and bit rate of the main stream, and writes it
// back.
//
// There is no message for single values: what was read is changed and goes back as a whole. So the record that analysis
// handed out is the one to change; in one of our own, what we do not know of would be unset.
#include <kov_protocol/system_config.h>

#include "example_frames.h"

using example::require;

namespace {

using Config = SYSTEM_CONFIG_GET_500_PARAM;

constexpr int kMainStream = 0;

class Camera {
 public:
  Camera() {
    config_.Capture.Brightness = 50;
    config_.Capture.IrcutNightStartTime = {18, 30, 0};
    config_.Capture.IrcutNightEndTime = {6, 15, 0};
    for (int i = 0; i < SYSTEM_CONFIG_MEDIA_STREAMS; ++i) {
      SYSTEM_CONFIG_MEDIA_STREAM& stream = config_.Encode.EncodeConfig[i];
      stream.Stream = i + 1;
      stream.FrameRate = 25;
      stream.BitRate = i == kMainStream ? 4096 : 512;
      example::put(stream.Resolution, i == kMainStream ? "1920x1080" : "640x360");
      example::put(stream.EncodeFormat, "H265");
    }
    example::put(config_.TitleOverlay.Title, "Gate 3");
    config_.Mask[kMainStream].Area[1].Width = 120;
    config_.AudioEncode.SampleRate = 8000;
    config_.PlayVolume = 70;
  }

  // Reads one request, obeys and answers. The header comes first: a query has no body to analyse.
  void serve(int socket) {
    const std::string payload = example::receivePayload(socket);
    const KOV_PROTOCOL_HEADER header = example::readHeader(payload);
    const std::string code = header.Msg_code;
    if (code == "500") return example::sendMessage(socket, header, &config_, KOV_RESPONSE);
    require(code == "520", "a known code, not " + code);
    const example::Received request(payload);
    take(request.as<Config>());
    example::sendMessage(socket, header, nullptr, KOV_RESPONSE);
  }

 private:
  // The times and the range of light modes are told, but nobody reads them back: the camera keeps its own.
  void take(const Config& received) {
    const Config own = config_;
    config_ = received;
    std::memcpy(config_.LightConfig.LightModeRange, own.LightConfig.LightModeRange,
                sizeof own.LightConfig.LightModeRange);
    config_.Capture.IrcutNightStartTime = own.Capture.IrcutNightStartTime;
    config_.Capture.IrcutNightEndTime = own.Capture.IrcutNightEndTime;
    config_.Encode.AdvanceEncodeConfig.WDRStartTime = own.Encode.AdvanceEncodeConfig.WDRStartTime;
    config_.Encode.AdvanceEncodeConfig.WDREndTime = own.Encode.AdvanceEncodeConfig.WDREndTime;
    config_.Image.DRCConfig.DRCStartTime = own.Image.DRCConfig.DRCStartTime;
    config_.Image.DRCConfig.DRCEndTime = own.Image.DRCConfig.DRCEndTime;
  }

  Config config_;
};

class Client {
 public:
  // The answer to a query, as it came.
  std::string query() {
    send("500", SYSTEM_CONFIG_GET_MESSAGE_TYPE, nullptr);
    return example::receivePayload(connection_.client());
  }

  void write(const Config& config) {
    send("520", SYSTEM_CONFIG_SET_MESSAGE_TYPE, &config);
    const KOV_PROTOCOL_HEADER answer = example::readHeader(example::receivePayload(connection_.client()));
    require(std::strcmp(answer.Msg_code, "520") == 0, "an acknowledged change");
  }

 private:
  void send(const char* code, const char* type, const Config* config) {
    example::sendMessage(connection_.client(), example::headerOf(type, code), config, KOV_REQUEST);
    camera_.serve(connection_.device());  // elsewhere at the other end of the network
  }

  const example::Connection connection_;
  Camera camera_;
};

// The text with the one place changed where `from` stands.
std::string changed(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  require(at != std::string::npos && text.find(from, at + 1) == std::string::npos, "one " + from);
  return text.replace(at, from.size(), to);
}

}  // namespace

int main() {
  Client client;
  const std::string before = client.query();
  const example::Received answer(before);
  Config config = answer.as<Config>();  // a copy to change; it holds no pointers
  SYSTEM_CONFIG_MEDIA_STREAM& stream = config.Encode.EncodeConfig[kMainStream];
  require(std::strcmp(stream.Resolution, "1920x1080") == 0 && stream.BitRate == 4096, "the main stream as it was");
  example::put(stream.Resolution, "1280x720");
  stream.BitRate = 2048;
  client.write(config);

  // The whole answers are compared, so that nothing else may change: not the other stream, nor what we never looked at.
  const std::string after = client.query();
  const std::string resized = changed(before, "Resolution=\"1920x1080\"", "Resolution=\"1280x720\"");
  require(after == changed(resized, "BitRate=\"4096\"", "BitRate=\"2048\""), "two changes and no other");
  std::printf("main stream %s at %d kbit/s\n", stream.Resolution, stream.BitRate);
  return EXIT_SUCCESS;
}
