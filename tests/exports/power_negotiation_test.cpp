// The three power-negotiation natives of liborlajni.so are ordinary C++
// functions: the library's dynamic symbol table must hold them under their
// mangled names only, never under the plain JNI names. Their behaviour is
// checked by calling them through those names with a stand-in JNIEnv that
// knows just the field calls they make, against the simulated reader.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <jni.h>

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "record/journal.h"
#include "reader/sessions.h"
#include "reader/status.h"

namespace {

const char* const kGetStatus =
    "_Z68Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationStatusP7JNIEnv_P7_jclassiP8_jobject";
const char* const kSetState =
    "_Z67Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetPowerNegotiationStateP7JNIEnv_P7_jclassiP8_jobject";
const char* const kGetState =
    "_Z67Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationStateP7JNIEnv_P7_jclassiP8_jobject";

using Native = jint (*)(JNIEnv*, jclass, jint, jobject);

struct Export {
  const char* plain;
  const char* mangled;
};
const Export kExports[] = {
    {"Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationStatus", kGetStatus},
    {"Java_com_kovra_rfid_orla_ORLANatives_RFID_1SetPowerNegotiationState", kSetState},
    {"Java_com_kovra_rfid_orla_ORLANatives_RFID_1GetPowerNegotiationState", kGetState},
};

// dlsym reads the library's dynamic symbol table (and those of what it
// depends on), as the virtual machine's lookup by name does.
TEST(PowerNegotiationExports, OnlyTheMangledNamesAreExported) {
  void* library = dlopen(ORLA_JNI_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(nullptr, library) << dlerror();
  for (const Export& e : kExports) {
    EXPECT_NE(nullptr, dlsym(library, e.mangled)) << e.mangled;
    EXPECT_EQ(nullptr, dlsym(library, e.plain)) << e.plain;
  }
  dlclose(library);
}

// A Java object as a map from field name to value; every field access is
// logged as "Get name sig" or "Set name sig".
struct FakeObject {
  std::map<std::string, jvalue> fields;
  std::vector<std::string> log;
};

struct FakeField {
  std::string name;
  std::string signature;
};

// The stand-in JNIEnv: GetObjectClass, GetFieldID and the boolean and short
// field calls; every other entry is NULL, so any other call crashes the test.
class FakeEnv {
 public:
  FakeEnv() {
    table_.GetObjectClass = [](JNIEnv*, jobject object) { return reinterpret_cast<jclass>(object); };
    table_.GetFieldID = [](JNIEnv*, jclass, const char* name, const char* signature) {
      fields().push_back({name, signature});
      return reinterpret_cast<jfieldID>(&fields().back());
    };
    table_.GetBooleanField = [](JNIEnv*, jobject object, jfieldID field) { return access(object, field, "Get").z; };
    table_.SetBooleanField = [](JNIEnv*, jobject object, jfieldID field, jboolean value) {
      access(object, field, "Set").z = value;
    };
    table_.SetShortField = [](JNIEnv*, jobject object, jfieldID field, jshort value) {
      access(object, field, "Set").s = value;
    };
    env_.functions = &table_;
  }

  JNIEnv* env() { return &env_; }

 private:
  static std::deque<FakeField>& fields() {
    static std::deque<FakeField> all;  // addresses stay valid as it grows
    return all;
  }

  static jvalue& access(jobject object, jfieldID id, const char* what) {
    auto* fake = reinterpret_cast<FakeObject*>(object);
    const auto* field = reinterpret_cast<const FakeField*>(id);
    fake->log.push_back(std::string(what) + " " + field->name + " " + field->signature);
    return fake->fields[field->name];
  }

  JNINativeInterface_ table_{};
  JNIEnv env_{};
};

class PowerNegotiationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    sim::resetSimulator();
    sim::record(true);
    library_ = dlopen(ORLA_JNI_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(nullptr, library_) << dlerror();
    reader_ = static_cast<jint>(sim::openSession());
  }
  void TearDown() override {
    if (library_ != nullptr) dlclose(library_);
    sim::resetSimulator();
  }

  Native native(const char* symbol) {
    auto entry = reinterpret_cast<Native>(dlsym(library_, symbol));
    EXPECT_NE(nullptr, entry) << symbol;
    return entry;
  }

  static std::vector<uint64_t> argsOf(const std::string& fn) {
    sim::Call call;
    EXPECT_TRUE(sim::findCall(fn, -1, &call)) << fn;
    return call.args;
  }

  jobject object(FakeObject& fake) { return reinterpret_cast<jobject>(&fake); }

  void* library_ = nullptr;
  jint reader_ = 0;
  FakeEnv jni_;
};

TEST_F(PowerNegotiationTest, SetStateReadsStatusAndPassesItAsOneOrZero) {
  Native set = native(kSetState);
  ASSERT_NE(nullptr, set);
  FakeObject state;
  state.fields["status"].z = 0x80;
  state.fields["powernegstate"].z = 0;
  EXPECT_EQ(sim::kSuccess, set(jni_.env(), nullptr, reader_, object(state)));
  EXPECT_EQ((std::vector<uint64_t>{static_cast<uint64_t>(reader_), 1}), argsOf("RFID_SetPowerNegotiationState"));
  EXPECT_EQ((std::vector<std::string>{"Get status Z"}), state.log);

  state.fields["status"].z = 0;
  sim::setScriptedStatus("RFID_SetPowerNegotiationState", 7);
  EXPECT_EQ(7, set(jni_.env(), nullptr, -4, object(state)));
  EXPECT_EQ((std::vector<uint64_t>{0xFFFFFFFFFFFFFFFCull, 0}), argsOf("RFID_SetPowerNegotiationState"))
      << "handle sign-extended";
}

TEST_F(PowerNegotiationTest, GetStateWritesPowernegstateAsItStandsOnlyOnSuccess) {
  Native get = native(kGetState);
  ASSERT_NE(nullptr, get);
  FakeObject state;
  sim::setScriptedOutput("RFID_GetPowerNegotiationState", {2});
  EXPECT_EQ(sim::kSuccess, get(jni_.env(), nullptr, reader_, object(state)));
  EXPECT_EQ((std::vector<std::string>{"Set powernegstate Z"}), state.log);
  EXPECT_EQ(2, state.fields["powernegstate"].z) << "the byte as the reader gave it";

  FakeObject untouched;
  sim::setScriptedStatus("RFID_GetPowerNegotiationState", 5);
  EXPECT_EQ(5, get(jni_.env(), nullptr, reader_, object(untouched)));
  EXPECT_TRUE(untouched.log.empty());
}

TEST_F(PowerNegotiationTest, GetStatusWritesTheLowSixteenBitsSignExtendedOnlyOnSuccess) {
  Native get = native(kGetStatus);
  ASSERT_NE(nullptr, get);
  FakeObject status;
  sim::setScriptedOutput("RFID_GetPowerNegotiationStatus", {0x05, 0x80, 0x01, 0x00});
  EXPECT_EQ(sim::kSuccess, get(jni_.env(), nullptr, reader_, object(status)));
  EXPECT_EQ((std::vector<std::string>{"Set enumMode S"}), status.log);
  EXPECT_EQ(static_cast<jshort>(0x8005), status.fields["enumMode"].s);

  FakeObject untouched;
  untouched.fields["enumMode"].s = 3;
  sim::setScriptedStatus("RFID_GetPowerNegotiationStatus", 5);
  EXPECT_EQ(5, get(jni_.env(), nullptr, reader_, object(untouched)));
  EXPECT_TRUE(untouched.log.empty());
  EXPECT_EQ(3, untouched.fields["enumMode"].s);
}

}  // namespace
