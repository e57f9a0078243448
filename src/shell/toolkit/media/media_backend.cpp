// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QPluginLoader>

#include "shell/toolkit/media/media_backend_p.h"

namespace toolkit {

namespace {

constexpr const char* backend_variable = "QT_MEDIA_BACKEND";

/// Whether the plugin is there by which Qt reaches a backend, with the libraries that it needs.
bool LoadPlugin(const QString& backend) {
  for (const QString& folder : QCoreApplication::libraryPaths()) {
    const QDir plugins(folder + QStringLiteral("/multimedia"));
    for (const QString& file : plugins.entryList({QStringLiteral("*%1mediaplugin*").arg(backend)}))
      if (QPluginLoader(plugins.filePath(file)).load()) return true;
  }
  return false;
}

/// A function of GStreamer, to which the program is not linked: the plugin loads it.
template <typename Function>
Function Resolve(const char* name) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the host does not know its type.
  return reinterpret_cast<Function>(QLibrary::resolve(QStringLiteral("gstreamer-1.0"), 0, name));
}

/// Whether GStreamer has the element on which every player stands: it comes in a package of its
/// own.
bool HasPlayerElement() {
  const auto initialise = Resolve<int (*)(int*, char***, void**)>("gst_init_check");
  const auto find = Resolve<void* (*)(const char*)>("gst_element_factory_find");
  const auto release = Resolve<void (*)(void*)>("gst_object_unref");
  if (initialise == nullptr || find == nullptr || release == nullptr) return false;
  void* const element = initialise(nullptr, nullptr, nullptr) == 0 ? nullptr : find("playbin");
  if (element != nullptr) release(element);
  return element != nullptr;
}

bool Look() {
  // This one knows MIDI and the old video formats, and it plays on without a sound card.
  const QString gstreamer = QStringLiteral("gstreamer");
  if (!qEnvironmentVariableIsSet(backend_variable)) qputenv(backend_variable, gstreamer.toUtf8());
  const QString backend = qEnvironmentVariable(backend_variable);
  return LoadPlugin(backend) && (backend != gstreamer || HasPlayerElement());
}

}  // namespace

bool MediaBackendIsThere() {
  static const bool is_there = Look();
  return is_there;
}

}  // namespace toolkit
