#include "reader/single_access.h"

#include <mutex>
#include <vector>

#include "reader/antenna_selection.h"
#include "reader/last_error.h"
#include "reader/tag_access.h"
#include "reader/rounds.h"
#include "reader/state.h"
#include "reader/status.h"
#include "reader/tag_records.h"

namespace sim {
namespace {

constexpr size_t kScriptedTagBytes = 192;

struct Answered {
  SimTag seen;  // the tag as it was found
  uint16_t antenna = 0;
  TagAnswer answer;
};

AccessTarget targetOf(const ApiCall& call) {
  AccessTarget target;
  target.tagId = call.captured("tagID").bytes;
  target.antennas = orEveryAntenna(antennaList(capturedOf(call), "antennaInfo"));
  target.filter = readPostFilter(capturedOf(call), "accessFilter");
  return target;
}

std::vector<Answered> perform(const AccessTarget& target, const AccessOperation& operation) {
  std::vector<Answered> answered;
  changePopulation([&](Population& tags) {
    for (SimTag& tag : tags) {
      const std::optional<uint16_t> antenna = targetAntenna(tag, target);
      if (!antenna) continue;
      Answered a{tag, *antenna, {}};
      a.answer = applyOperation(tag, operation);
      answered.push_back(std::move(a));
      if (!target.tagId.empty()) break;
    }
  });
  return answered;
}

// False when the record is not one of ours.
bool reportResult(Reader& reader, void* resultTag, const Answered& first, const AccessOperation& operation) {
  TagRead read;
  RecordFill fill;
  {
    std::lock_guard<std::mutex> lock(reader.mutex);
    read = makeRead(reader, first.seen, first.antenna);
    read.peakRssi = first.seen.rssiByAntenna.at(first.antenna);  // one sighting: the tag's own level
    fill.maxTagIdBytes = reader.storage.maxTagIDByteCount();
    fill.maxMemoryBankBytes = reader.storage.maxMemoryBankByteCount();
    fill.upTime = reader.upTimeForm;
  }
  read.memoryBankData = first.answer.data;
  read.access = accessResult(operation, first.answer);
  return fillTagRecord(resultTag, read, fill);
}

}  // namespace

int32_t answerAccess(ApiCall& call, int64_t handle, const char* fn, uint32_t op, const char* dataName,
                     void* resultTag) {
  std::vector<uint8_t> scripted;
  if (scriptedOutput(fn, &scripted)) {
    call.outputsIfScripted({{resultTag, kScriptedTagBytes}});
    return call.finish();
  }
  const int32_t status = call.finish();
  if (call.scripted() || status != kSuccess) return status;
  const ReaderPtr reader = findReader(handle);
  if (!reader) return kInvalidHandle;

  AccessOperation operation;
  operation.op = op;
  operation.params = call.captured("params");
  if (dataName != nullptr) operation.data = call.captured(std::string("params.") + dataName);
  const AccessTarget target = targetOf(call);
  const std::vector<Answered> answered = perform(target, operation);
  if (answered.empty()) return rememberFailure(handle, kNotFound, fn, "found no " + describeTarget(target));

  if (resultTag != nullptr && !reportResult(*reader, resultTag, answered.front(), operation)) {
    return rememberFailure(handle, kInvalidParam, fn, "the result tag record is not one RFID_AllocateTag gave");
  }
  for (const Answered& a : answered) {
    if (!a.answer.ok()) return rememberFailure(handle, a.answer.status, fn, a.answer.reason);
  }
  return kSuccess;
}

}  // namespace sim
