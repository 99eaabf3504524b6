#include "fake_jvm.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <regex>
#include <sstream>

#include "reader_sim.h"
#include "timeline.h"

namespace jt {

struct EnvBlock {
  JNIEnv_ env;  // first: a JNIEnv* is an EnvBlock*
  Jvm* jvm;
  JNINativeInterface_ table;
};

namespace {

Jvm& jvmOf(JNIEnv* env) { return *reinterpret_cast<EnvBlock*>(env)->jvm; }
Obj* obj(jobject o) { return reinterpret_cast<Obj*>(o); }
jobject ref(Obj* o) { return reinterpret_cast<jobject>(o); }
const Jvm::FieldId& fid(jfieldID f) { return *reinterpret_cast<const Jvm::FieldId*>(f); }
std::string idOf(const Obj* o) { return o == nullptr ? "null" : o->cls + "#" + std::to_string(o->id); }

size_t elementSize(char type) {
  return type == 'Z' || type == 'B' ? 1 : type == 'S' ? 2 : type == 'I' ? 4 : type == 'J' ? 8 : 0;
}

// An element of a pinned copy (little-endian), sign-extended except booleans.
int64_t readElement(const uint8_t* p, char type) {
  uint64_t bits = 0;
  std::memcpy(&bits, p, elementSize(type));
  const int unused = 64 - 8 * static_cast<int>(elementSize(type));
  return type == 'Z' ? static_cast<int64_t>(bits) : static_cast<int64_t>(bits << unused) >> unused;
}

// Names of the JNINativeInterface_ slots, from the jni.h the test was built with.
std::string slotName(size_t slot) {
  std::ifstream header(JT_JNI_HEADER);
  std::stringstream text;
  text << header.rdbuf();
  const std::string all = text.str();
  const size_t start = all.find("struct JNINativeInterface_ {");
  const size_t end = all.find("};", start);
  const std::string body = all.substr(start, end - start);
  static const std::regex member(R"(\(JNICALL \*(\w+)\)|void \*(reserved\d))");
  size_t index = 0;
  for (auto it = std::sregex_iterator(body.begin(), body.end(), member); it != std::sregex_iterator(); ++it, ++index)
    if (index == slot) return (*it)[1].matched ? (*it)[1].str() : (*it)[2].str();
  return "slot " + std::to_string(slot);
}

template <size_t Slot>
jlong unimplemented(JNIEnv*, ...) {
  const std::string name = slotName(Slot);
  ADD_FAILURE() << "the library called JNI function " << name << ", which the model does not implement";
  Timeline::record("UNIMPLEMENTED " + name);
  return 0;
}

template <size_t... Slots>
void trapAll(JNINativeInterface_& table, std::index_sequence<Slots...>) {
  void** slots = reinterpret_cast<void**>(&table);
  ((slots[Slots] = reinterpret_cast<void*>(&unimplemented<Slots>)), ...);
}

// A call on a null reference fails the test unless the test expects such
// calls (it then counts them).
bool present(JNIEnv* env, Obj* o, const char* what) {
  if (o != nullptr) return true;
  Timeline::record(std::string(what) + " on null");
  if (!jvmOf(env).nullReferencesExpected) ADD_FAILURE() << what << " on a null reference";
  return false;
}

// Typed field access: the field's signature must be the type's.
template <char Sig>
Obj::Field* typedField(JNIEnv* env, jobject o, jfieldID f, const char* fn, bool write) {
  if (!present(env, obj(o), fn) || f == nullptr) return nullptr;
  const Jvm::FieldId& id = fid(f);
  if (Sig == 'L' ? (id.sig[0] != 'L' && id.sig[0] != '[') : id.sig != std::string(1, Sig))
    ADD_FAILURE() << fn << " on " << id.name << " of signature " << id.sig;
  if (obj(o)->cls != id.cls)
    ADD_FAILURE() << fn << " with a field ID of " << id.cls << " on an object of " << obj(o)->cls;
  Obj::Field& field = jvmOf(env).field(obj(o), id);
  if (write) jvmOf(env).countWrite();
  return &field;
}

// "Int" for 'I': the type's part of the names of the JNI functions.
std::string typeName(char sig) {
  static const std::map<char, std::string> names = {{'Z', "Boolean"}, {'B', "Byte"}, {'S', "Short"},
                                                    {'I', "Int"},     {'J', "Long"}, {'F', "Float"}};
  return names.at(sig);
}

template <typename T, char Sig>
T getField(JNIEnv* env, jobject o, jfieldID f) {
  const std::string fn = "Get" + typeName(Sig) + "Field";
  Obj::Field* field = typedField<Sig>(env, o, f, fn.c_str(), false);
  if (field == nullptr) return T{};
  Timeline::record(fn + " " + obj(o)->cls + "." + fid(f).name);
  return static_cast<T>(field->number);
}

template <typename T, char Sig>
void setField(JNIEnv* env, jobject o, jfieldID f, T value) {
  const std::string fn = "Set" + typeName(Sig) + "Field";
  Obj::Field* field = typedField<Sig>(env, o, f, fn.c_str(), true);
  if (field == nullptr) return;
  field->set = true;
  field->number = static_cast<int64_t>(value);
  Timeline::record(fn + " " + obj(o)->cls + "." + fid(f).name + "=" + std::to_string(field->number));
}

template <typename T, typename A, char Sig>
T* pinArray(JNIEnv* env, A a, jboolean* isCopy) {
  const std::string fn = "Get" + typeName(Sig) + "ArrayElements";
  if (isCopy != nullptr) *isCopy = JNI_TRUE;
  if (!present(env, obj(a), fn.c_str())) return nullptr;
  return static_cast<T*>(jvmOf(env).pin(obj(a), fn));
}

template <typename T, typename A, char Sig>
void unpinArray(JNIEnv* env, A a, T* data, jint mode) {
  const std::string fn = "Release" + typeName(Sig) + "ArrayElements";
  if (present(env, obj(a), fn.c_str())) jvmOf(env).unpin(obj(a), data, fn, mode);
}

template <typename T, char Sig>
void setFieldCalls(T (*&get)(JNIEnv*, jobject, jfieldID), void (*&set)(JNIEnv*, jobject, jfieldID, T)) {
  get = &getField<T, Sig>;
  set = &setField<T, Sig>;
}

template <typename T, typename A, char Sig>
void setArrayCalls(T* (*&get)(JNIEnv*, A, jboolean*), void (*&release)(JNIEnv*, A, T*, jint)) {
  get = &pinArray<T, A, Sig>;
  release = &unpinArray<T, A, Sig>;
}

void fillTable(JNINativeInterface_& table) {
  trapAll(table, std::make_index_sequence<sizeof(JNINativeInterface_) / sizeof(void*)>());
  table.GetObjectClass = [](JNIEnv* env, jobject o) -> jclass {
    if (!present(env, obj(o), "GetObjectClass")) return nullptr;
    Timeline::record("GetObjectClass " + idOf(obj(o)));
    return reinterpret_cast<jclass>(jvmOf(env).classOf(obj(o)->cls));
  };
  table.GetFieldID = [](JNIEnv* env, jclass c, const char* name, const char* sig) -> jfieldID {
    if (!present(env, obj(c), "GetFieldID")) return nullptr;
    Timeline::record("GetFieldID " + obj(c)->cls + "." + name + " " + sig);
    return reinterpret_cast<jfieldID>(const_cast<Jvm::FieldId*>(jvmOf(env).fieldId(obj(c)->cls, name, sig)));
  };
  table.GetObjectField = [](JNIEnv* env, jobject o, jfieldID f) -> jobject {
    Obj::Field* field = typedField<'L'>(env, o, f, "GetObjectField", false);
    if (field == nullptr) return nullptr;
    Timeline::record("GetObjectField " + obj(o)->cls + "." + fid(f).name + " -> " + idOf(field->ref));
    return ref(field->ref);
  };
  table.SetObjectField = [](JNIEnv* env, jobject o, jfieldID f, jobject v) {
    Obj::Field* field = typedField<'L'>(env, o, f, "SetObjectField", true);
    if (field == nullptr) return;
    field->set = true;
    field->ref = obj(v);
    const bool text = obj(v) != nullptr && obj(v)->kind == Obj::String;
    const std::string shown = text ? "\"" + obj(v)->text + "\"" : idOf(obj(v));
    Timeline::record("SetObjectField " + obj(o)->cls + "." + fid(f).name + "=" + shown);
  };
  setFieldCalls<jboolean, 'Z'>(table.GetBooleanField, table.SetBooleanField);
  setFieldCalls<jbyte, 'B'>(table.GetByteField, table.SetByteField);
  setFieldCalls<jshort, 'S'>(table.GetShortField, table.SetShortField);
  setFieldCalls<jint, 'I'>(table.GetIntField, table.SetIntField);
  setFieldCalls<jlong, 'J'>(table.GetLongField, table.SetLongField);
  setFieldCalls<jfloat, 'F'>(table.GetFloatField, table.SetFloatField);
  table.GetStringLength = [](JNIEnv* env, jstring s) -> jsize {
    if (!present(env, obj(s), "GetStringLength")) return 0;
    Timeline::record("GetStringLength " + idOf(obj(s)));
    return static_cast<jsize>(obj(s)->text.size());
  };
  table.GetStringUTFChars = [](JNIEnv* env, jstring s, jboolean* isCopy) -> const char* {
    if (isCopy != nullptr) *isCopy = JNI_TRUE;
    if (!present(env, obj(s), "GetStringUTFChars")) return nullptr;
    return static_cast<const char*>(jvmOf(env).pin(obj(s), "GetStringUTFChars"));
  };
  table.ReleaseStringUTFChars = [](JNIEnv* env, jstring s, const char* chars) {
    if (present(env, obj(s), "ReleaseStringUTFChars")) jvmOf(env).unpin(obj(s), chars, "ReleaseStringUTFChars", 0);
  };
  table.NewStringUTF = [](JNIEnv* env, const char* text) -> jstring {
    if (text == nullptr) ADD_FAILURE() << "NewStringUTF(NULL)";
    Obj* s = jvmOf(env).string(text == nullptr ? "" : text);
    Timeline::record("NewStringUTF \"" + s->text + "\"");
    return reinterpret_cast<jstring>(s);
  };
  table.GetArrayLength = [](JNIEnv* env, jarray a) -> jsize {
    if (!present(env, obj(a), "GetArrayLength")) return 0;
    Timeline::record("GetArrayLength " + idOf(obj(a)));
    return static_cast<jsize>(obj(a)->cls[1] == 'L' ? obj(a)->elements.size() : obj(a)->values.size());
  };
  table.GetObjectArrayElement = [](JNIEnv* env, jobjectArray a, jsize i) -> jobject {
    if (!present(env, obj(a), "GetObjectArrayElement")) return nullptr;
    Timeline::record("GetObjectArrayElement " + idOf(obj(a)) + "[" + std::to_string(i) + "]");
    if (i < 0 || static_cast<size_t>(i) >= obj(a)->elements.size()) {
      ADD_FAILURE() << "GetObjectArrayElement index " << i << " out of bounds";
      return nullptr;
    }
    return ref(obj(a)->elements[i]);
  };
  setArrayCalls<jboolean, jbooleanArray, 'Z'>(table.GetBooleanArrayElements, table.ReleaseBooleanArrayElements);
  setArrayCalls<jbyte, jbyteArray, 'B'>(table.GetByteArrayElements, table.ReleaseByteArrayElements);
  setArrayCalls<jshort, jshortArray, 'S'>(table.GetShortArrayElements, table.ReleaseShortArrayElements);
  setArrayCalls<jint, jintArray, 'I'>(table.GetIntArrayElements, table.ReleaseIntArrayElements);
  setArrayCalls<jlong, jlongArray, 'J'>(table.GetLongArrayElements, table.ReleaseLongArrayElements);
}

}  // namespace

std::string shortClassName(const std::string& descriptor) {
  std::string name = descriptor;
  if (!name.empty() && name[0] == 'L') name = name.substr(1, name.size() - 2);
  const size_t slash = name.rfind('/');
  return slash == std::string::npos ? name : name.substr(slash + 1);
}

Jvm::Jvm() : block_(new EnvBlock{}) {
  block_->jvm = this;
  fillTable(block_->table);
  block_->env.functions = &block_->table;
}

Jvm::~Jvm() {
  for (Pin& p : pins_) std::free(p.data);  // released or kept on purpose (the tests count those)
}

JNIEnv* Jvm::env() { return &block_->env; }

Obj* Jvm::make(Obj::Kind kind, const std::string& cls) {
  objects_.push_back(std::make_unique<Obj>());
  Obj* o = objects_.back().get();
  o->kind = kind;
  o->cls = cls;
  o->id = static_cast<int>(objects_.size());
  return o;
}

Obj* Jvm::object(const std::string& cls, std::initializer_list<std::pair<std::string, Val>> fields) {
  Obj* o = make(Obj::Plain, cls);
  for (const auto& f : fields) set(o, f.first, f.second);
  return o;
}

Obj* Jvm::string(const std::string& text) {
  Obj* s = make(Obj::String, "String");
  s->text = text;
  return s;
}

Obj* Jvm::array(const std::string& signature, size_t length) {
  Obj* a = make(Obj::Array, signature);
  if (signature[1] == 'L') {
    for (size_t i = 0; i < length; ++i) a->elements.push_back(make(Obj::Plain, shortClassName(signature.substr(1))));
  } else {
    a->values.assign(length, 0);
  }
  return a;
}

Obj* Jvm::value(const Val& v) {
  switch (v.kind) {
    case Val::Text: return string(v.text);
    case Val::Ref: return v.ref;
    default: return nullptr;
  }
}

Obj* Jvm::at(Obj* root, const std::string& path) {
  Obj* o = root;
  std::stringstream parts(path);
  for (std::string name; o != nullptr && std::getline(parts, name, '.');) {
    Obj::Field& f = o->fields[name];
    if (!f.set) {
      f.set = true;
      f.ref = make(Obj::Plain, "");  // takes its class from the first read of the field
    }
    o = f.ref;
  }
  return o;
}

Obj* Jvm::set(Obj* root, const std::string& path, const Val& value) {
  const size_t dot = path.rfind('.');
  Obj* holder = dot == std::string::npos ? root : at(root, path.substr(0, dot));
  Obj::Field& f = holder->fields[dot == std::string::npos ? path : path.substr(dot + 1)];
  f.set = true;
  f.number = value.number;
  f.ref = value.kind == Val::Number ? nullptr : this->value(value);
  return holder;
}

const Jvm::FieldId* Jvm::fieldId(const std::string& cls, const std::string& name, const std::string& sig) {
  for (const FieldId& f : fieldIds_)
    if (f.cls == cls && f.name == name && f.sig == sig) return &f;
  fieldIds_.push_back({cls, name, sig});
  return &fieldIds_.back();
}

Obj* Jvm::classOf(const std::string& name) {
  Obj*& c = classes_[name];
  if (c == nullptr) c = make(Obj::Class, name);
  return c;
}

void Jvm::fillDefault(Obj::Field& f, const std::string& sig) {
  f.set = true;
  if (sig == "Ljava/lang/String;") {
    f.ref = string(defaultText);
  } else if (sig[0] == 'L') {
    f.ref = make(Obj::Plain, shortClassName(sig));
  } else if (sig[0] == '[') {
    f.ref = array(sig, defaultLength);
    for (size_t i = 0; i < f.ref->values.size(); ++i) f.ref->values[i] = sig == "[Z" ? 1 : 0x11 * (i + 1) % 0x80;
  } else {
    f.number = sig == "Z" ? defaultBoolean : defaultNumber;
  }
}

Obj::Field& Jvm::field(Obj* object, const FieldId& id) {
  Obj::Field& f = object->fields[id.name];
  if (!f.set) fillDefault(f, id.sig);
  if (f.ref != nullptr && f.ref->cls.empty()) f.ref->cls = shortClassName(id.sig);
  return f;
}

void* Jvm::pin(Obj* source, const std::string& get) {
  void* data = nullptr;
  if (source->kind == Obj::String) {
    data = std::calloc(source->text.size() + 1, 1);
    std::memcpy(data, source->text.data(), source->text.size());
  } else {
    const char type = source->cls[1];
    const size_t size = elementSize(type);
    static const std::map<std::string, char> types = {{"GetBooleanArrayElements", 'Z'}, {"GetByteArrayElements", 'B'},
        {"GetShortArrayElements", 'S'}, {"GetIntArrayElements", 'I'}, {"GetLongArrayElements", 'J'}};
    auto expected = types.find(get);
    if (size == 0 || expected == types.end() || expected->second != type) ADD_FAILURE() << get << " on " << source->cls;
    // Slack past the end: lengths are the Java side's to keep right, and the
    // library does not check them.
    data = std::calloc(source->values.size() + 256, size == 0 ? 1 : size);
    for (size_t i = 0; size != 0 && i < source->values.size(); ++i)
      std::memcpy(static_cast<uint8_t*>(data) + i * size, &source->values[i], size);
  }
  pins_.push_back({source, data, get, 0, false, -1, 0});
  pins_.back().pinnedAt = cCallCount();
  Timeline::record(get + " " + idOf(source));
  return data;
}

bool Jvm::unpin(Obj* source, const void* data, const std::string& release, int mode) {
  for (Pin& p : pins_) {
    if (p.source != source || p.data != data || p.released) continue;
    if (source->kind == Obj::Array && (mode == 0 || mode == JNI_COMMIT)) {
      const char type = source->cls[1];
      const size_t size = elementSize(type);
      for (size_t i = 0; i < source->values.size(); ++i) {
        const int64_t v = readElement(static_cast<const uint8_t*>(data) + i * size, type);
        if (v != source->values[i]) ++writes_;
        source->values[i] = v;
      }
    }
    if (mode != JNI_COMMIT) {
      p.released = true;
      p.mode = mode;
      p.releasedAt = cCallCount();  // the copy lives on: the C API may still be handed the pointer
    }
    Timeline::record(release + " " + idOf(source) + " mode " + std::to_string(mode));
    return true;
  }
  ADD_FAILURE() << release << " of " << idOf(source) << " with a pointer that is not pinned";
  return false;
}

}  // namespace jt
