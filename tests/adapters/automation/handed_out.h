#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "adapters/automation/com_ptr.h"

namespace orvendal {

/// An object as one of the modules hands it out.
struct HandedOut {
  ComPtr<IUnknown> object;
  /// Of those that are called by names: a member that is asked for without harm, how many arguments it takes,
  /// and a property that can be set, if there is one.
  const wchar_t* member = nullptr;
  UINT takes = 0;
  const wchar_t* property = nullptr;
};

/// The classes that the three DLLs hand out, by names for the tests.
enum class Handed {
  kComponentFactory,
  kLibraryFactory,
  kStoreFactory,
  kClassOrvendal,
  kConnectionPoints,
  kForm,
  kControls,
  kControl,
  kControlsInTurn,
  kAccessible,
  kDatosClase,
  kHerramientas,
  kMensajes,
  kCambioSesion,
  kBuscadorProductos,
  kSelectorEmpleado,
  kRecalculo,
  kConnection,
  kRecordset,
  kFields,
  kField,
  kFieldsInTurn,
};

/// All three DLLs in this process, with the screen open: every class has an object out.
class HandedOutWorld {
 public:
  HandedOutWorld();
  ~HandedOutWorld();
  HandedOutWorld(const HandedOutWorld&) = delete;
  HandedOutWorld& operator=(const HandedOutWorld&) = delete;

  HandedOut Of(Handed what) const;

 private:
  class World;
  std::unique_ptr<World> world_;
};

std::string NameOf(Handed what);

/// What can be done with them; a class may know several.
enum Manner : unsigned {
  kAny = 0,
  kFactory = 1,
  kEnumeration = 2,
  kCalledByNames = 4,
  /// Its `member` is asked for without arguments.
  kAskedAlone = 8,
  /// Its functions are called by their places in a table, too, which a type library describes.
  kCalledByTable = 16,
};
/// The classes that know all of that manner.
std::vector<Handed> AllOf(unsigned manner);

}  // namespace orvendal
