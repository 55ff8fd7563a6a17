' A client that knows the component by its name alone. Its last line says that it came to its end: the script
' host itself ends well whatever happens.
Option Explicit
Dim componente, fallos

fallos = 0
Sub Espera(que, obtenido, esperado)
  If obtenido <> esperado Then
    fallos = fallos + 1
    WScript.Echo que & ": " & obtenido & ", expected " & esperado
  End If
End Sub

Set componente = CreateObject("DllOrvendal.ClassOrvendal")
Espera "interface", TypeName(componente), "_ClassOrvendal"

On Error Resume Next

componente.Orvendal Nothing, "01", "P1", "T1"
Espera "no session, number", Err.Number, 91
Espera "no session, source", Err.Source, "DllOrvendal"
Espera "no session, text", Err.Description, "Object variable or With block variable not set"
Err.Clear

componente.Orvendal "no object", "01", "P1", "T1"
Espera "text for the session", Err.Number, 13
Err.Clear

componente.Orvendal componente, "01", "P1", "T1"
Espera "another object for the session", Err.Number, 13
Err.Clear

componente.Orvendal Nothing, "01"
Espera "too few arguments", Err.Number, 450
Err.Clear

componente.Cerrar
Espera "no such function", Err.Number, 438
Err.Clear

Set componente = Nothing
If fallos = 0 Then WScript.Echo "all as expected"
