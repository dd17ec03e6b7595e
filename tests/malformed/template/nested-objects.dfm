object F: TForm
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
object A: TPanel
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
end
