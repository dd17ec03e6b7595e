object F: TForm
  object R: TAlReport
  end
  object B: tAlBand
    BandType = alr_Detail
    Top = 0
    Height = 20
    Columns = 4294967297
  end
end
