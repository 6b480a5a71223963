// A client steers a camera that can pan, tilt and zoom: it lists the presets, sets one, moves away, calls the preset
// and reads the position.
//
// Requests and answers share one Msg_code. The sub-command in the record says what is meant, and what `pExData` is.
#include <kov_protocol/ptz_control.h>

#include <map>

#include "example_frames.h"

using example::require;

namespace {

using Command = PTZ_CONTROL_PTZ_CMD_PARAM;
using Position = PTZ_CONTROL_PTZ_CMD_GETCURPOS_PARAM;
using Preset = PTZ_CONTROL_PTZ_CMD_SETPRESET_PARAM;
using PresetList = PTZ_CONTROL_PTZ_CMD_GETPRESETLIST_PARAM;

constexpr int kChannel = 2;

void send(int socket, int direction, const char* cmd, void* block) {
  Command command;
  command.channelid = kChannel;
  example::put(command.cmd, cmd);
  command.pExData = block;  // stays the caller's
  const auto header = example::headerOf(PTZ_CONTROL_MESSAGE_TYPE, PTZ_CONTROL_MESSAGE_CODE);
  example::sendMessage(socket, header, &command, direction);
}

// The block of a received command. It lies behind the command in the same allocation.
template <class Block>
const Block& blockOf(const Command& command) {
  require(command.pExData != nullptr, std::string("a block with ") + command.cmd);
  return *static_cast<const Block*>(command.pExData);
}

Position positionAt(int x, int y, int zoom) {
  Position position;
  position.x = x;
  position.y = y;
  position.mul = zoom;
  return position;
}

bool same(const Position& a, const Position& b) { return a.x == b.x && a.y == b.y && a.mul == b.mul; }

class Camera {
 public:
  // Reads one request, obeys and answers.
  void serve(int socket) {
    const example::Received request(socket);
    const auto& command = request.as<Command>();
    // The request for the presets names no channel on the wire.
    require(command.channelid == kChannel || command.channelid == -1, "the channel that was asked");
    const std::string cmd = command.cmd;
    if (cmd == "GetPresetList") return answerPresets(socket);
    if (cmd == "getCurPos") return send(socket, KOV_RESPONSE, "getCurPos", &position_);
    if (cmd == "setCurPos") {
      position_ = blockOf<Position>(command);
      position_.maxMul = kLargestZoom;
    } else if (cmd == "setpreset") {
      presets_[blockOf<Preset>(command).preset] = position_;
    } else if (cmd == "callpreset") {
      const auto preset = presets_.find(blockOf<Preset>(command).preset);
      if (preset != presets_.end()) position_ = preset->second;
    } else {
      require(false, "a known sub-command, not " + cmd);
    }
    // These answers have no body; a header without a record says that the request arrived.
    example::sendMessage(socket, request.header, nullptr, KOV_RESPONSE);
  }

 private:
  static constexpr int kLargestZoom = 30;

  void answerPresets(int socket) {
    PresetList list;
    list.count = 0;
    for (const auto& [number, position] : presets_) {
      if (list.count == PTZ_CONTROL_PRESETS) break;
      example::put(list.preset[list.count++].preset_id, std::to_string(number));
    }
    send(socket, KOV_RESPONSE, "GetPresetList", &list);
  }

  Position position_ = positionAt(100, 20, 1);
  std::map<int, Position> presets_ = {{1, positionAt(0, 0, 1)}, {4, positionAt(900, 45, 8)}};
};

class Client {
 public:
  std::string presets() {
    ask("GetPresetList", nullptr);
    const example::Received answer(connection_.client());
    const auto& list = blockOf<PresetList>(answer.as<Command>());
    std::string found;
    for (int i = 0; i < list.count; ++i) found += std::string(list.preset[i].preset_id) + " ";
    return found;
  }

  Position position() {
    ask("getCurPos", nullptr);
    const example::Received answer(connection_.client());
    return blockOf<Position>(answer.as<Command>());
  }

  void moveTo(Position position) { tell("setCurPos", &position); }

  void preset(const char* cmd, int number) {
    Preset preset;
    preset.preset = number;
    tell(cmd, &preset);
  }

 private:
  void ask(const char* cmd, void* block) {
    send(connection_.client(), KOV_REQUEST, cmd, block);
    camera_.serve(connection_.device());  // elsewhere at the other end of the network
  }

  void tell(const char* cmd, void* block) {
    ask(cmd, block);
    const KOV_PROTOCOL_HEADER answer = example::readHeader(example::receivePayload(connection_.client()));
    require(std::strcmp(answer.Msg_code, PTZ_CONTROL_MESSAGE_CODE) == 0, "an answer of the same kind");
  }

  const example::Connection connection_;
  Camera camera_;
};

}  // namespace

int main() {
  Client client;
  require(client.presets() == "1 4 ", "the presets that the camera came with");

  client.preset("setpreset", 9);
  const std::string presets = client.presets();
  require(presets == "1 4 9 ", "the new preset in the list");
  const Position start = client.position();
  require(same(start, positionAt(100, 20, 1)), "the position at the start");

  const Position elsewhere = positionAt(-35, 60, 12);
  client.moveTo(elsewhere);
  require(same(client.position(), elsewhere), "the position where the camera was sent");
  require(client.position().maxMul == 30, "the largest zoom");

  client.preset("callpreset", 9);
  require(same(client.position(), start), "the position of the preset");
  std::printf("presets %s, back at %d/%d\n", presets.c_str(), start.x, start.y);
  return EXIT_SUCCESS;
}
