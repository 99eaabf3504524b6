// A recording JNIEnv over a small model of Java objects, for driving the
// library's natives without a virtual machine. Objects have a class name and
// fields by name; fields a test did not set read as defaults, and object or
// array fields come into being on first read with the class their signature
// names, so a test sets only what matters to it. Every JNI call is logged on
// the Timeline in order; a JNI function the model does not implement fails
// the test with its name.
#pragma once

#include <jni.h>

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace jt {

struct Obj;

// A field or argument value: a number (any primitive, raw), null, a string's
// text or an object.
struct Val {
  enum Kind { Number, Null, Text, Ref } kind = Number;
  int64_t number = 0;
  std::string text;
  Obj* ref = nullptr;
  Val(int64_t n) : number(n) {}  // NOLINT: implicit on purpose, for compact tables
  Val(int n) : number(n) {}      // NOLINT
  Val(std::nullptr_t) : kind(Null) {}
  Val(const char* s) : kind(Text), text(s) {}  // NOLINT
  Val(Obj* o) : kind(o == nullptr ? Null : Ref), ref(o) {}  // NOLINT
};

struct Obj {
  enum Kind { Plain, Class, String, Array } kind = Plain;
  std::string cls;  // short class name ("TAG_DATA"), "String", or an array signature ("[S")
  int id = 0;
  struct Field {
    bool set = false;
    int64_t number = 0;
    Obj* ref = nullptr;  // object fields; nullptr is Java null once set
  };
  std::map<std::string, Field> fields;
  std::string text;             // String
  std::vector<int64_t> values;  // primitive array
  std::vector<Obj*> elements;   // object array
};

// An array pinned with Get<Type>ArrayElements or a string's characters got
// with GetStringUTFChars, and what became of it.
struct Pin {
  Obj* source = nullptr;
  void* data = nullptr;
  std::string get;  // the JNI function that pinned it
  size_t pinnedAt = 0;
  bool released = false;
  int mode = -1;
  size_t releasedAt = 0;
};

class Jvm {
 public:
  Jvm();
  ~Jvm();
  Jvm(const Jvm&) = delete;
  Jvm& operator=(const Jvm&) = delete;

  JNIEnv* env();

  // Builders.
  Obj* object(const std::string& cls, std::initializer_list<std::pair<std::string, Val>> fields = {});
  Obj* enumValue(const std::string& cls, int ordinal) { return object(cls, {{"ordinal", ordinal}}); }
  Obj* string(const std::string& text);
  // A primitive array ("[B", "[S", "[I", "[J", "[Z") or an object array
  // ("[Lcom/kovra/rfid/orla/TAG_DATA;") of `length` default elements.
  Obj* array(const std::string& signature, size_t length);
  Obj* value(const Val& v);  // a Val as an object reference (Text makes a String)
  // Sets a field along a dotted path ("secConnInfo.secureMode"), making the
  // objects on the way. Returns the object that holds the field.
  Obj* set(Obj* root, const std::string& path, const Val& value);
  // The object at a dotted path (made when absent).
  Obj* at(Obj* root, const std::string& path);

  // What unset fields read as.
  int64_t defaultNumber = 2;
  int64_t defaultBoolean = 1;
  size_t defaultLength = 64;
  std::string defaultText = "30AB";  // hexadecimal text of defaultNumber bytes
  // JNI calls on null references are logged ("... on null") instead of
  // failing the test.
  bool nullReferencesExpected = false;

  const std::vector<Pin>& pins() const { return pins_; }
  // Field writes and array elements changed through pins, so far.
  size_t writes() const { return writes_; }

  // Used by the function table.
  struct FieldId {
    std::string cls, name, sig;
  };
  const FieldId* fieldId(const std::string& cls, const std::string& name, const std::string& sig);
  Obj* classOf(const std::string& name);
  Obj::Field& field(Obj* object, const FieldId& id);  // makes a default value when unset
  void* pin(Obj* source, const std::string& get);
  bool unpin(Obj* source, const void* data, const std::string& release, int mode);
  void countWrite() { ++writes_; }

 private:
  Obj* make(Obj::Kind kind, const std::string& cls);
  void fillDefault(Obj::Field& f, const std::string& sig);

  std::deque<std::unique_ptr<Obj>> objects_;
  std::map<std::string, Obj*> classes_;
  std::deque<FieldId> fieldIds_;
  std::vector<Pin> pins_;
  size_t writes_ = 0;
  std::unique_ptr<struct EnvBlock> block_;
};

// The short class name of a descriptor: "Lcom/kovra/rfid/orla/TAG_DATA;" -> "TAG_DATA".
std::string shortClassName(const std::string& descriptor);

}  // namespace jt
