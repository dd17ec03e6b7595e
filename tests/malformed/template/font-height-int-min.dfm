object F: TForm
  Font.Height = -2147483648
  object R: TAlReport
  end
end
