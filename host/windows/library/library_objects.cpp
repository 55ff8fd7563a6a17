#include "host/windows/library/library_objects.h"

#include "host/windows/library/connection_in_out.h"
#include "host/windows/library/library_state.h"
#include "host/windows/library/object_property.h"
#include "platform/base/text.h"

namespace orvendal {

HRESULT ToolsObject::FiltrarTecla(IDispatch** caja, SHORT* key_ascii, VARIANT_BOOL* opcion,
                                  SHORT* tecla) noexcept {
  return Do({caja, key_ascii, opcion, tecla}, [&] {
    const ComPtr<IDispatch> box(*caja);
    const EditedText text{TextProperty(box.Get(), L"Text"),
                          static_cast<int>(LongProperty(box.Get(), L"SelStart")),
                          static_cast<int>(LongProperty(box.Get(), L"SelLength"))};
    Win32WindowHost& windows = LibraryState::Of().Windows();
    // The key came to a window of the host's.
    windows.InputTime(static_cast<DWORD>(GetMessageTime()));
    const QuantityKey filtered = quantity_filter_.Filter(text, *key_ascii, windows, *opcion != VARIANT_FALSE);
    if (filtered.instead) SetTextProperty(box.Get(), L"SelText", *filtered.instead);
    if (filtered.shown) SetTextProperty(box.Get(), L"Text", *filtered.shown);
    if (filtered.select_all) {
      SetLongProperty(box.Get(), L"SelStart", 0);
      SetLongProperty(box.Get(), L"SelLength", static_cast<LONG>(Len(TextProperty(box.Get(), L"Text"))));
    }
    *tecla = static_cast<SHORT>(filtered.key);
  });
}

HRESULT ToolsObject::AccionPuesto(IDispatch** conexion, BSTR* cod_puesto) noexcept {
  return Do({conexion, cod_puesto}, [&] {
    ConnectionInOut connection(conexion);
    TextInOut workstation(cod_puesto);
    LibraryState::Of().Library().NewHerramientas()->AccionPuesto(connection.value, workstation.value);
    connection.Give();
    workstation.Give();
  });
}

HRESULT ToolsObject::LiberarForm(IDispatch** formulario) noexcept {
  return Do({formulario}, [&] { Replace(*formulario, {}); });
}

HRESULT ToolsObject::FormatoFecha(BSTR* fecha, unsigned char* opcion, BSTR* modo1, BSTR* modo2,
                                  BSTR* texto) noexcept {
  return Do({fecha, opcion, modo1, modo2, texto}, [&] {
    TextInOut date(fecha);
    TextInOut first_mode(modo1);
    TextInOut second_mode(modo2);
    *texto = MakeBstr(LibraryState::Of().Library().NewHerramientas()->FormatoFecha(
        date.value, *opcion, first_mode.value, second_mode.value));
  });
}

HRESULT ToolsObject::RegistrarSentencia(BSTR* cadena_sesion, IDispatch** conexion, BSTR* sentencia) noexcept {
  return Do({cadena_sesion, conexion, sentencia}, [&] {
    TextInOut session(cadena_sesion);
    ConnectionInOut connection(conexion);
    TextInOut statement(sentencia);
    LibraryState::Of().Library().NewHerramientas()->RegistrarSentencia(session.value, connection.value,
                                                                       statement.value);
  });
}

HRESULT ToolsObject::FechaHoraTexto(DATE* momento, BSTR* texto) noexcept {
  return Do({momento, texto}, [&] {
    Date moment = Date::FromSerial(*momento);
    *texto = MakeBstr(LibraryState::Of().Library().NewHerramientas()->FechaHoraTexto(moment));
  });
}

HRESULT RecalculationObject::RecalcularProducto(IDispatch** conexion, BSTR* clave_sucursal, BSTR* codigo,
                                                BSTR* texto) noexcept {
  return Do({conexion, clave_sucursal, codigo, texto}, [&] {
    ConnectionInOut connection(conexion);
    TextInOut branch(clave_sucursal);
    TextInOut code(codigo);
    TextInOut text(texto);
    LibraryState::Of().Library().NewRecalculo()->RecalcularProducto(connection.value, branch.value,
                                                                    code.value, text.value);
  });
}

HRESULT MessagesObject::Mostrar(BSTR* texto, LONG* estilo, BSTR* titulo, LONG* respuesta) noexcept {
  return Do({texto, estilo, titulo, respuesta}, [&] {
    TextInOut text(texto);
    TextInOut title(titulo);
    std::int32_t style = *estilo;
    std::int32_t answer = 0;
    LibraryState::Of().Library().NewMensajes()->Mostrar(text.value, style, title.value, answer);
    *respuesta = answer;
  });
}

}  // namespace orvendal
