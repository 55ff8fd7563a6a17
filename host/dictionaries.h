#pragma once

#include "host/language.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// The captions of the screen in one language, as three recordsets of one row whose fields are the keys.
struct Dictionaries {
  RecordsetRef general;
  RecordsetRef acciones;
  RecordsetRef pantallas;
};

/// New ones, each standing on its row.
Dictionaries MakeDictionaries(Language language);

}  // namespace orvendal
