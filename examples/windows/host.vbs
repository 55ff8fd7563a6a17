' The smallest host that is a script: cscript host.vbs CONNECTION_STRING [BRANCH]
' Needs DllOrvendal.dll and DllTrevano.dll registered, and an ADO that can open the store.
Option Explicit
Dim session, component, branch

Set session = CreateObject("DllTrevano.DatosClase")
session.OpenConnection WScript.Arguments(0)
session.Language = "en"
branch = "01"
If WScript.Arguments.Count > 1 Then branch = WScript.Arguments(1)

Set component = CreateObject("DllOrvendal.ClassOrvendal")
component.Orvendal session, branch, "1", "1"

' The screen lives on this thread: as long as it is open, messages have to be pumped.
Do While session.ScreenIsOpen
  session.Pump 50
Loop
Set component = Nothing
Set session = Nothing
