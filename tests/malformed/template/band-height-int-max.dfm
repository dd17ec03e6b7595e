object F: TForm
  object R: TAlReport
  end
  object B: tAlBand
    BandType = alr_Detail
    Top = 0
    Height = 2147483647
    Columns = 1
  end
end
