object F: TForm
  Caption = 'open
end
