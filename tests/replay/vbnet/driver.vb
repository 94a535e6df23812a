' Plays the application for one macro. Module1 of a macro's project looks for a running application; here is none.
Module Driver
    Sub Main()
        Call New MacroName().Run(CType(New Morvane.Made(), Morvane.Application))
    End Sub

    Function GetActiveObject(ByVal name As String) As Object
        Return Nothing
    End Function
End Module

' The system's wraps objects on one platform only.
Namespace System.Runtime.InteropServices
    Public Class DispatchWrapper
        Private m_object As Object

        Sub New(ByVal wrapped As Object)
            m_object = wrapped
        End Sub

        Public ReadOnly Property WrappedObject() As Object
            Get
                Return m_object
            End Get
        End Property
    End Class
End Namespace
