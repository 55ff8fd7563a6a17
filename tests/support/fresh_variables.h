#pragma once

#include <gtest/gtest.h>

#include "form/frm_orvendalciales.h"

namespace orvendal::testing_support {

/// The form's variables are those of a form just loaded. `first_activation` is still to come, or is over.
inline void ExpectFreshVariables(const FrmOrvendalciales::Variables& now, bool first_activation) {
  EXPECT_EQ(now.RsCodigos, nullptr);
  EXPECT_EQ(now.PrimeraActivacion, first_activation);
  EXPECT_FALSE(now.ModoNuevo);
  EXPECT_FALSE(now.PintandoFila);
  EXPECT_FALSE(now.MoviendoColumna);
  EXPECT_EQ(now.CodigoCelda, "");
  EXPECT_EQ(now.CantidadCelda, "");
  EXPECT_EQ(now.BufferTeclas, "");
  EXPECT_FALSE(now.CambiarEstilista);
  EXPECT_FALSE(now.FlagSupervisor);
  EXPECT_FALSE(now.FlagFechaCambio);
  EXPECT_EQ(now.UltimaColumna, 3);
}

}  // namespace orvendal::testing_support
