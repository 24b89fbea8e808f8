B Line Brigade
	Begin
	L 1 5 0 Brigadier of the Line
	U 30 5 LineInf Musket 0 0 2 1st Line Battalion
	U 30 5 LineInf Musket 0 0 2 2nd Line Battalion
	U 24 6 LightInf Rifle 1 0 3 Light Battalion
	End
</T>
S 20 12 Supply Column
</T>
