#include "DllTrevano.h"
// The interface has to be known before the pointers to it are used.
#include "adapters/com/com_session.h"

namespace orvendal {

ComSession::ComSession(Boundary& boundary, _DatosClase* host) : boundary_(boundary), host_(host) {}

void ComSession::RellenarSesion(const SessionArguments& session) {
  const ComPtr<_DatosClase> host = host_;
  ConnectionCell connection(boundary_, session.Conexion);
  ObjectCell object1(boundary_, session.ObjetoSesion1);
  ObjectCell object2(boundary_, session.ObjetoSesion2);
  ObjectCell object3(boundary_, session.ObjetoSesion3);
  ObjectCell object4(boundary_, session.ObjetoSesion4);
  ObjectCell form1(boundary_, session.FormHost1, ObjectRole::kForm);
  ObjectCell form2(boundary_, session.FormHost2, ObjectRole::kForm);
  LongCell width(session.AnchoBase);
  LongCell height(session.AltoBase);
  ScreenDatumCell screen_datum(session.DatoPantalla);
  RecordsetCell general(boundary_, session.DiccGeneral);
  RecordsetCell actions(boundary_, session.DiccAcciones);
  RecordsetCell screens(boundary_, session.DiccPantallas);
  TextCell chain(session.CadenaSesion);
  TextCell branch(session.CodSucursal);

  CallOut()
      .Make([&] {
        return host->RellenarSesion(connection.InOut(), object1.InOut(), object2.InOut(), object3.InOut(),
                                    object4.InOut(), form1.InOut(), form2.InOut(), width.InOut(),
                                    height.InOut(), screen_datum.InOut(), general.InOut(), actions.InOut(),
                                    screens.InOut(), chain.InOut(), branch.InOut());
      })
      .Take([&] { connection.TakeOver(session.Conexion); })
      .Take([&] { object1.TakeOver(session.ObjetoSesion1); })
      .Take([&] { object2.TakeOver(session.ObjetoSesion2); })
      .Take([&] { object3.TakeOver(session.ObjetoSesion3); })
      .Take([&] { object4.TakeOver(session.ObjetoSesion4); })
      .Take([&] { form1.TakeOver(session.FormHost1); })
      .Take([&] { form2.TakeOver(session.FormHost2); })
      .Take([&] { width.TakeOver(session.AnchoBase); })
      .Take([&] { height.TakeOver(session.AltoBase); })
      .Take([&] { screen_datum.TakeOver(session.DatoPantalla); })
      .Take([&] { general.TakeOver(session.DiccGeneral); })
      .Take([&] { actions.TakeOver(session.DiccAcciones); })
      .Take([&] { screens.TakeOver(session.DiccPantallas); })
      .Take([&] { chain.TakeOver(session.CadenaSesion); })
      .Take([&] { branch.TakeOver(session.CodSucursal); })
      .Finish();
}

}  // namespace orvendal
